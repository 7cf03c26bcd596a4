// Cut lines of the simple puzzles, drawn into Pic_Bitmap in ColorContraste.
#include "core/PuzzGbl.h"
#include "cutting/Angulos.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

// Every cell gets its own outline inside it: two neighbours show a line two
// pixels wide.
void DibujaRectangulos(Superficie &s) {
    const int32_t w = AnchoPieza, h = AltoPieza;
    for (int16_t fila = 0; fila < PiezasPorLado; ++fila) {
        for (int16_t col = 0; col < PiezasPorLado; ++col) {
            AuxFila = fila;
            AuxColumna = col;
            s.Caja(w * col, h * fila, w * col + w - 1, h * fila + h - 1);
        }
    }
}

void Arco(Superficie &s, double x, double y, double radio, double inicio, double fin,
          double aspecto) {
    s.CircleArco(x, y, radio, Radianes(inicio), Radianes(fin),
                 static_cast<double>(static_cast<float>(aspecto)));
}

// The joint under a cell: shoulder a, knob b, shoulder c. With s = +1 the
// shoulders dip into the lower cell and the knob stands in the upper one.
void JuntaHorizontal(Superficie &s, double x, double y, double signo) {
    const double w = AnchoPieza;
    Arco(s, x + 0.22 * w, y, 0.22 * w, 90 + 89 * signo, 270 + 89 * signo, 0.35);
    Arco(s, x + 0.5 * w, y - 0.09 * w * signo, 0.115 * w, 210 + 90 * signo, 150 + 95 * signo, 1.0);
    Arco(s, x + 0.78 * w - AjusteX, y, 0.22 * w, 90 + 89 * signo, 270 + 89 * signo, 0.35);
}

// The joint left of a cell, the same turned on its side.
void JuntaVertical(Superficie &s, double x, double y, double signo) {
    const double h = AltoPieza;
    Arco(s, x, y + 0.22 * h, 0.22 * h, 180 - 90 * signo, 180 + 90 * signo, 2.85);
    Arco(s, x + 0.09 * h * signo, y + 0.5 * h, 0.115 * h, 130 + 90 * signo, 240 - 90 * signo, 1.0);
    Arco(s, x, y + 0.78 * h - AjusteY, 0.22 * h, 180 - 90 * signo, 180 + 90 * signo, 2.85);
}

// The frame, then the joints between cells only: the outer sides are
// straight. Each joint is drawn twice, one pixel apart, for a line two
// pixels thick. The sign is +1 exactly where row plus column is even.
// The last shoulder of a row ends on the right edge of the puzzle; the clip
// keeps its end pixel off the picture's rest, which no line may touch.
void DibujaIrregulares(Superficie &s) {
    const int16_t n = PiezasPorLado;
    const Region puzzle(Rectangulo{0, 0, AnchoPuzzle, AltoPuzzle});
    SelectClipRgn(s, &puzzle);
    s.Caja(0, 0, AnchoPuzzle - 1, AltoPuzzle - 1);
    // The horizontal joints row by row, then the vertical ones column by
    // column; along each line the knobs alternate, starting downwards
    // (or rightwards) on the odd lines. Each joint is drawn twice, one pixel
    // apart, for a cut line two pixels wide.
    for (const bool horizontal : {true, false}) {
        for (int16_t linea = 1; linea < n; ++linea) {
            double signo = linea % 2 == 0 ? 1 : -1;
            for (int16_t k = 0; k < n; ++k) {
                const int16_t fila = horizontal ? linea : k, col = horizontal ? k : linea;
                AuxFila = fila;
                AuxColumna = col;
                const double x = AnchoPieza * col, y = AltoPieza * fila;
                if (horizontal) {
                    JuntaHorizontal(s, x, y, signo);
                    JuntaHorizontal(s, x, y - 1, signo);
                } else {
                    JuntaVertical(s, x, y, signo);
                    JuntaVertical(s, x - 1, y, signo);
                }
                signo = -signo;
            }
        }
    }
    SelectClipRgn(s, nullptr);
}

} // namespace

void DibujaCortesSimples() {
    Superficie &s = teselari.Pic_Bitmap;
    if (TipoPieza == 0) {
        DibujaRectangulos(s);
    } else {
        DibujaIrregulares(s);
    }
}
