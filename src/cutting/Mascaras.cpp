// The mask and the image of one piece, made on demand.
//
// After EnmascaraPieza, Pic_PiezaMascara holds the piece in black on white
// and Pic_PiezaImagen the picture of the piece, black wherever the mask is
// white: a masked copy then needs only AND with the mask and XOR with the
// image. Nothing is kept between calls.
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

const Superficie &FuenteDeImagen() {
    return ModoColocadas != 0 ? teselari.Pic_PiezaColor : teselari.Pic_Bitmap;
}

// Double puzzles: the cell of Pic_Mascara as it is for the inner piece,
// inverted for the outer one.
void EnmascaraDoble(int16_t k, const Pieza &q) {
    const int32_t w = AnchoPieza, h = AltoPieza;
    const uint32_t rop = k > NroPiezas / 2 ? SRCCOPY : NOTSRCCOPY;
    BitBlt(teselari.Pic_PiezaMascara, 0, 0, w, h, teselari.Pic_Mascara, q.XCorrecta, q.YCorrecta,
           rop);
    BitBlt(teselari.Pic_PiezaImagen, 0, 0, w, h, FuenteDeImagen(), q.XCorrecta, q.YCorrecta,
           SRCCOPY);
    BitBlt(teselari.Pic_PiezaImagen, 0, 0, w, h, teselari.Pic_PiezaMascara, 0, 0, DSTANDNOTSRC);
}

struct Lado {
    int32_t x1, y1, x2, y2;
    double semillas[3][2];
};

// A side on the edge of the puzzle becomes straight: a line along it, and
// the bays between the line and the piece filled. A seed that falls on the
// piece paints nothing, so one list of seeds serves both templates.
void EnderezaLado(Superficie &m, const Lado &lado) {
    m.Line(lado.x1, lado.y1, lado.x2, lado.y2, COLOR_NEGRO);
    for (const auto &s : lado.semillas) {
        FloodFill(m, Redondea(s[0]), Redondea(s[1]), COLOR_NEGRO);
    }
}

void EnderezaBordes(Superficie &m, int32_t l, int32_t r, int32_t u, int32_t d) {
    const double w = AnchoPieza, h = AltoPieza, mx = MargenX, my = MargenY;
    if (l != 0) {
        EnderezaLado(
            m, {MargenX,
                MargenY,
                MargenX,
                AltoPieza + MargenY,
                {{mx + 1, 0.22 * h + my}, {0.09 * h + mx, 0.5 * h + my}, {mx + 1, 0.78 * h + my}}});
    }
    if (r != 0) {
        const int32_t x = AnchoPieza + MargenX - 1;
        EnderezaLado(m, {x,
                         MargenY,
                         x,
                         AltoPieza + MargenY,
                         {{w + mx - 2, 0.22 * h + my},
                          {w + mx - 0.09 * h, 0.5 * h + my},
                          {w + mx - 2, 0.78 * h + my}}});
    }
    if (u != 0) {
        EnderezaLado(
            m, {MargenX,
                MargenY,
                AnchoPieza + MargenX,
                MargenY,
                {{0.22 * w + mx, my + 1}, {0.5 * w + mx, 0.09 * w + my}, {0.78 * w + mx, my + 1}}});
    }
    if (d != 0) {
        const int32_t y = AltoPieza + MargenY - 1;
        EnderezaLado(m, {MargenX,
                         y,
                         AnchoPieza + MargenX,
                         y,
                         {{0.22 * w + mx, h + my - 2},
                          {0.5 * w + mx, h + my - 0.09 * w},
                          {0.78 * w + mx, h + my - 2}}});
    }
}

// Irregular puzzles: the template of the cell's colour on the chess board,
// without its margin on the puzzle's outer sides.
void EnmascaraIrregular(const Pieza &q) {
    const int32_t w = AnchoPieza, h = AltoPieza;
    const int32_t fila = h != 0 ? q.YCorrecta / h : 0;
    const int32_t col = w != 0 ? q.XCorrecta / w : 0;
    const int32_t t = (fila % 2) != (col % 2) ? AnchoPiezaTotal : 0;
    const int32_t l = q.XCorrecta == 0 ? MargenX : 0;
    const int32_t r = q.XCorrecta + w == AnchoPuzzle ? MargenX : 0;
    const int32_t u = q.YCorrecta == 0 ? MargenY : 0;
    const int32_t d = q.YCorrecta + h == AltoPuzzle ? MargenY : 0;
    Superficie &m = teselari.Pic_PiezaMascara;
    m.Cls();
    BitBlt(m, l, u, AnchoPiezaTotal - l - r, AltoPiezaTotal - u - d, teselari.Pic_Temporal, t + l,
           u, SRCCOPY);
    EnderezaBordes(m, l, r, u, d);
    BitBlt(teselari.Pic_PiezaImagen, 0, 0, AnchoPiezaTotal, AltoPiezaTotal, FuenteDeImagen(),
           q.XCorrecta - MargenX, q.YCorrecta - MargenY, SRCCOPY);
    BitBlt(teselari.Pic_PiezaImagen, 0, 0, AnchoPiezaTotal, AltoPiezaTotal, m, 0, 0, DSTANDNOTSRC);
}

} // namespace

void EnmascaraPieza(int16_t i) {
    if (i < 1 || i >= static_cast<int32_t>(OrdenPiezas.size())) {
        return;
    }
    const int16_t k = OrdenPiezas[i];
    if (k < 1 || k >= static_cast<int32_t>(Piezas.size())) {
        return;
    }
    const Pieza &q = Piezas[k];
    if (TipoPieza > 1) {
        EnmascaraDoble(k, q);
    } else if (TipoPieza == 1) {
        EnmascaraIrregular(q);
    }
}
