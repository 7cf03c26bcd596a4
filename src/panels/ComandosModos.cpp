// The commands of the three exclusive modes: 6 coloured view, 7 laying
// out, 9 solving. A second press of 7 or 9 clears the flag, and the routine
// still running stops by itself at its next test of it.
#include "board/Automaticos.h"
#include "board/Inspeccion.h"
#include "core/PuzzGbl.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

void ConmutaColocadas() {
    MarcaBoton(6, true);
    PonEspera();
    ModoColocadas = static_cast<int16_t>(~ModoColocadas);
    MostrarPiezasBienoMal();
    QuitaEspera();
    MarcaBoton(6, false);
}

void ConmutaOrdenar() {
    BotonPulsado[7] = static_cast<int16_t>(~BotonPulsado[7]);
    DibuBot(7, teselari.Pic_BotonSiempre[7]);
    ModoOrdenar = static_cast<int16_t>(~ModoOrdenar);
    if (ModoOrdenar != FALSO) {
        OrdenarPiezas(); // clears the mode and releases 7 at its end
    }
}

void ConmutaResolver() {
    BotonPulsado[9] = static_cast<int16_t>(~BotonPulsado[9]);
    DibuBot(9, teselari.Pic_BotonSiempre[9]);
    ModoResolver = static_cast<int16_t>(~ModoResolver);
    if (ModoResolver != FALSO) {
        ResuelvePuzzle(); // clears the mode and releases 9 at its end
    }
}
