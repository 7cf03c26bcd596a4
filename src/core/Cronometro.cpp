#include "core/Cronometro.h"

#include "core/PuzzGbl.h"

using namespace PuzzGbl;

namespace {

// The same six strokes in swapped colours: the key of the present state
// looks pushed in.
void DibujaTeclas(Color a, Color b) {
    Superficie &s = teselari.Pic_Cronome;
    s.Caja(4, 4, 31, 14, a);
    s.Line(31, 4, 31, 14, b);
    s.Line(4, 14, 31, 14, b);
    s.Caja(31, 4, 58, 14, b);
    s.Line(58, 4, 58, 14, a);
    s.Line(31, 14, 58, 14, a);
}

} // namespace

void ArrancaCronometro() {
    RelojEnMarcha = VERDADERO;
    DibujaTeclas(COLOR_NEGRO, COLOR_BLANCO);
}

void ParaCronometro() {
    RelojEnMarcha = FALSO;
    DibujaTeclas(COLOR_BLANCO, COLOR_NEGRO);
}
