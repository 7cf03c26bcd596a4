#include "board/Arrastre.h"

#include <algorithm>
#include <cmath>

#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

// The frame lines that cross the box of the lifted piece come back, inside
// the box only (the clip region holds it). Each line takes its end point
// too, one further than a line reaches, so that the corner where the two
// meet comes back as the frame's box drew it.
void RepintaMarco(Superficie &s, int32_t a, int32_t b) {
    const Color c = static_cast<Color>(ColorContraste);
    if (a + AnchoPiezaTotal >= AnchoPuzzle && a <= AnchoPuzzle && b <= AltoPuzzle) {
        const int32_t e = std::min<int32_t>(b + AltoPiezaTotal, AltoPuzzle);
        s.Line(AnchoPuzzle, b, AnchoPuzzle, e + 1, c);
    }
    if (b + AltoPiezaTotal >= AltoPuzzle && b <= AltoPuzzle && a <= AnchoPuzzle) {
        const int32_t e = std::min<int32_t>(a + AnchoPiezaTotal, AnchoPuzzle);
        s.Line(a, AltoPuzzle, e + 1, AltoPuzzle, c);
    }
}

// The pieces under the lifted one, bottom of the pile first; the region test
// skips every piece whose box does not touch it.
void RepintaVecinas() {
    for (int32_t p = NroPiezas; p >= 2; --p) {
        const Pieza &q = Piezas[OrdenPiezas[p]];
        const int32_t c = q.X - MargenX, d = q.Y - MargenY;
        SetRectRgn(RegionAnterior, c, d, c + AnchoPiezaTotal, d + AltoPiezaTotal);
        if (CombineRgn(RegionRecorte, RegionNueva, RegionAnterior, RGN_AND) == NULLREGION) {
            continue;
        }
        if (TipoPieza == 0) {
            MuestraPieza(teselari.Pic_Imagen, static_cast<int16_t>(p));
        } else {
            EnmascaraPieza(static_cast<int16_t>(p));
            EstampaPiezaEnImagen(c, d);
        }
    }
}

} // namespace

void RectanguloAtraccion(int32_t x, int32_t y, Region &region) {
    const int32_t mx = Int(((100 - FactorPegado) / 2.0) * (AnchoPieza / 100.0));
    const int32_t my = Int(((100 - FactorPegado) / 2.0) * (AltoPieza / 100.0));
    RectIzquierda = x + mx;
    RectArriba = y + my;
    RectDerecha = x + AnchoPieza - mx;
    RectAbajo = y + AltoPieza - my;
    SetRectRgn(region, RectIzquierda, RectArriba, RectDerecha, RectAbajo);
}

void LevantaPieza(int32_t x, int32_t y) {
    Superficie &imagen = teselari.Pic_Imagen;
    const Pieza &q = Piezas[OrdenPiezas[1]];
    const int32_t a = static_cast<int16_t>(q.X - MargenX);
    const int32_t b = static_cast<int16_t>(q.Y - MargenY);
    PiezaTemporal = q;
    if (TipoPieza != 0) {
        EnmascaraPieza(1);
    }
    MuestraPieza(teselari.Pic_Trabajo, 1);
    SetRectRgn(RegionNueva, a, b, a + AnchoPiezaTotal, b + AltoPiezaTotal);
    SelectClipRgn(imagen, &RegionNueva);
    imagen.CajaLlena(a, b, a + AnchoPiezaTotal, b + AltoPiezaTotal, imagen.BackColor());
    RepintaMarco(imagen, a, b);
    RepintaVecinas();
    SelectClipRgn(imagen, nullptr);
    if (TipoPieza != 0) {
        EnmascaraPieza(1);
    }
    // The rectangle around the piece's place in which a drop is attracted home.
    RectanguloAtraccion(q.XCorrecta, q.YCorrecta, RegionPieza);
    PulsacionX = static_cast<int16_t>(x);
    PulsacionY = static_cast<int16_t>(y);
    PiezaLevantada = VERDADERO;
}

void MuevePieza(double x, double y) {
    Superficie &trabajo = teselari.Pic_Trabajo;
    Pieza &q = Piezas[OrdenPiezas[1]];
    AnteriorX = q.X - MargenX;
    AnteriorY = q.Y - MargenY;
    q.X = Redondea(q.X + x - PulsacionX);
    q.Y = Redondea(q.Y + y - PulsacionY);
    MuestraPieza(trabajo, 1);
    const int32_t nx = q.X - MargenX, ny = q.Y - MargenY;
    SetRectRgn(RegionAnterior, AnteriorX, AnteriorY, AnteriorX + AnchoPiezaTotal,
               AnteriorY + AltoPiezaTotal);
    SetRectRgn(RegionNueva, nx, ny, nx + AnchoPiezaTotal, ny + AltoPiezaTotal);
    CombineRgn(RegionRecorte, RegionAnterior, RegionNueva, RGN_DIFF);
    SelectClipRgn(trabajo, &RegionRecorte);
    BitBlt(trabajo, AnteriorX, AnteriorY, AnchoPiezaTotal, AltoPiezaTotal, teselari.Pic_Imagen,
           AnteriorX, AnteriorY, SRCCOPY);
    SelectClipRgn(trabajo, nullptr);
    PulsacionX = static_cast<int16_t>(Redondea(x));
    PulsacionY = static_cast<int16_t>(Redondea(y));
}
