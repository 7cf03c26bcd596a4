// AbrirFic's what's-this mode and the pointing hand of its controls.
#include "core/Controles.h"
#include "dialog/FormAbrirFic.h"
#include "services/Ayuda.h"

void FormAbrirFic::Bot_QueEs_Click() {
    ModoQueEs = -1;
    MousePointer = PUNTERO_PREGUNTA;
}

bool FormAbrirFic::AtiendeQueEs(int16_t tema) {
    if (ModoQueEs == 0) {
        return false;
    }
    ModoQueEs = 0;
    MousePointer = PUNTERO_NORMAL;
    MuestraAyuda(tema != 0 ? tema : TemasAyuda::Personalizar);
    return true;
}

void FormAbrirFic::PonManoSiNormal(EstadoControl &control) {
    if (control.MousePointer == PUNTERO_NORMAL) {
        PonCursor(control, "ManoIndice");
    }
}
