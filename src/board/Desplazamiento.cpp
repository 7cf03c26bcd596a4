#include "board/Desplazamiento.h"

#include "core/PuzzGbl.h"

using namespace PuzzGbl;

// The whole surface moves, with the model that is its child; nothing is
// redrawn here. Mouse coordinates stay those of the surface, so pieces, hit
// tests and drags do not depend on the scroll position.
void BarraHor_Change() {
    teselari.Pic_Trabajo.Left = -teselari.BarraHor.Value();
}

void BarraVer_Change() {
    teselari.Pic_Trabajo.Top = -teselari.BarraVer.Value();
}
