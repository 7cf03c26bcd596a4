// The help viewer, by topic number, for the what's-this mode of the dialogs.
//
// The platform installs the viewer; with none installed a request is lost.
// Topic 0 is the contents.
#pragma once

#include <cstdint>

void MuestraAyuda(int16_t tema);

using VisorAyuda = void (*)(int16_t tema);
void PonVisorAyuda(VisorAyuda visor);
