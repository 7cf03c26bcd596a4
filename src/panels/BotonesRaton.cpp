// Pointers over the command buttons.
#include "panels/BotonesRaton.h"

#include "core/Controles.h"
#include "core/PuzzGbl.h"

using namespace PuzzGbl;

namespace {

bool IndiceValido(int16_t indice) {
    return indice >= 1 && indice <= 11;
}

// The hand where the button can act, no entry where it can't: commands 5
// to 9 have nothing to do on a finished puzzle.
void PonPunteroBoton(int16_t indice, EstadoControl &control) {
    const bool bloqueado = indice >= 5 && indice <= 9 && PuzzleCompleto != FALSO;
    if (!bloqueado && control.MousePointer == PUNTERO_PROHIBIDO) {
        PonCursor(control, "ManoIndice");
    }
    if (bloqueado && control.MousePointer != PUNTERO_PROHIBIDO) {
        control.MousePointer = PUNTERO_PROHIBIDO;
    }
}

} // namespace

void Pic_BotonSiempre_MouseMove(int16_t indice, int16_t, int16_t, float, float) {
    if (IndiceValido(indice)) {
        PonPunteroBoton(indice, teselari.Pic_BotonSiempre[indice]);
    }
}

void Pic_BotonDerecho_MouseMove(int16_t indice, int16_t, int16_t, float, float) {
    if (IndiceValido(indice)) {
        PonPunteroBoton(indice, teselari.Pic_BotonDerecho[indice]);
    }
}

void Pic_BotonesSiempre_MouseMove(int16_t, int16_t, float, float) {}
void Pic_BotonesDerecho_MouseMove(int16_t, int16_t, float, float) {}
void Pic_BSInfo_MouseMove(int16_t, int16_t, float, float) {}
