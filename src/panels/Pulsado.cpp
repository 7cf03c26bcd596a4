// The look of a running command and the pointer of the screen.
#include "core/PuzzGbl.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

void MarcaBoton(int16_t boton, bool pulsado) {
    BotonPulsado[boton] = pulsado ? VERDADERO : FALSO;
    DibuBot(boton, teselari.Pic_BotonSiempre[boton]);
}

void PonEspera() {
    teselari.MousePointer = 11;
}

void QuitaEspera() {
    teselari.MousePointer = 0;
}
