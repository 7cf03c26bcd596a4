// The look of a running command and the pointer of the screen.
#include "core/Controles.h"
#include "core/PuzzGbl.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

void MarcaBoton(int16_t boton, bool pulsado) {
    BotonPulsado[boton] = pulsado ? VERDADERO : FALSO;
    DibuBot(boton, teselari.Pic_BotonSiempre[boton]);
}

void PonEspera() {
    teselari.MousePointer = PUNTERO_ESPERA;
}

void QuitaEspera() {
    teselari.MousePointer = PUNTERO_NORMAL;
}
