// The dispatcher: the modes the new command excludes end first, then the
// command runs.
#include "panels/Comandos.h"

#include "board/Inspeccion.h"
#include "core/PuzzGbl.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

namespace {

// A finished puzzle leaves nothing for 5 to 9 to do.
bool Bloqueado(int16_t boton) {
    return boton >= 5 && boton <= 9 && PuzzleCompleto != FALSO;
}

// Ends the modes that command `boton` excludes. A routine of 7 or 9 that
// is still running finds its flag cleared and stops.
void TerminaModos(int16_t boton) {
    if (boton != 6 && ModoColocadas != FALSO) {
        PonEspera();
        ModoColocadas = FALSO;
        MostrarPiezasBienoMal(); // the pieces in their own colours again
        QuitaEspera();
    }
    if (boton != 9 && ModoResolver != FALSO) {
        ModoResolver = FALSO;
        MarcaBoton(9, false);
    }
    if (boton != 7 && ModoOrdenar != FALSO) {
        ModoOrdenar = FALSO;
        MarcaBoton(7, false);
    }
}

} // namespace

void PulsaBoton(int16_t boton) {
    TerminaModos(boton);
    if (Bloqueado(boton)) {
        return;
    }
    switch (boton) {
    case 1:
        AbreAyuda();
        break;
    case 2:
        PersonalizaAplicacion();
        break;
    case 3:
        MuestraOcultaModelo();
        break;
    case 4:
        BarajaDeNuevo();
        break;
    case 5:
        MuestraPiezasOcultas();
        break;
    case 6:
        ConmutaColocadas();
        break;
    case 7:
        ConmutaOrdenar();
        break;
    case 8:
        MuestraTutor();
        break;
    case 9:
        ConmutaResolver();
        break;
    case 10:
        AbreHistorico();
        break;
    case 11:
        PreguntaSalida();
        break;
    default:
        break;
    }
}
