#include "dialog/AyudaDialogo.h"

namespace {
VisorAyuda visor = nullptr;
}

void PonVisorAyuda(VisorAyuda v) {
    visor = v;
}

void MuestraAyuda(int16_t tema) {
    if (visor != nullptr) {
        visor(tema);
    }
}
