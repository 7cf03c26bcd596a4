#include "board/Seleccion.h"

#include "core/PuzzGbl.h"
#include "cutting/Corte.h"

using namespace PuzzGbl;

namespace {

// Whether (x, y) falls within the box of PiezaTemporal, both ends included.
bool DentroDeLaCaja(double x, double y) {
    const Pieza &q = PiezaTemporal;
    const double izquierda = q.X - MargenX, arriba = q.Y - MargenY;
    return x >= izquierda && x <= izquierda + AnchoPiezaTotal - 1 && y >= arriba &&
           y <= arriba + AltoPiezaTotal - 1;
}

// Whether the pixel under (x, y) belongs to the piece at position i, whose
// box holds the point. Irregular pieces are read on their own mask; every
// other cut on the mask of the cuts at the point of the home cell under the
// mouse: white is the outer piece of a cell (and all of a rectangle), black
// the inner one.
bool PixelOpaco(int16_t i, double x, double y) {
    const Pieza &q = PiezaTemporal;
    if (TipoPieza == 1) {
        EnmascaraPieza(i);
        return teselari.Pic_PiezaMascara.Point(x - (q.X - MargenX), y - (q.Y - MargenY)) ==
               COLOR_NEGRO;
    }
    const Color c = teselari.Pic_Mascara.Point(x - q.X + q.XCorrecta, y - q.Y + q.YCorrecta);
    const int32_t celdas = static_cast<int32_t>(PiezasPorLado) * PiezasPorLado;
    return OrdenPiezas[i] <= celdas ? c == COLOR_BLANCO : c == COLOR_NEGRO;
}

} // namespace

int16_t PiezaTocada(double x, double y) {
    for (int32_t i = 1; i <= NroPiezas; ++i) {
        PiezaTemporal = Piezas[OrdenPiezas[i]];
        if (DentroDeLaCaja(x, y) && PixelOpaco(static_cast<int16_t>(i), x, y)) {
            return static_cast<int16_t>(i);
        }
    }
    return 0;
}
