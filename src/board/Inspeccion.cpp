#include "board/Inspeccion.h"

#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

constexpr Color VERDE = 0x00FF00;
constexpr Color ROJO = 0x0000FF;

} // namespace

// The pile is painted over the board as it stands, bottom first, so the
// result is the same pile in other colours. One flat surface serves both
// colours: it is recoloured between pieces, and only when it differs. With
// ModoColocadas clear the pieces' sources don't read it, and they come back
// in their own pixels.
void MostrarPiezasBienoMal() {
    FormTeselari &f = teselari;
    Superficie &color = f.Pic_PiezaColor;
    color.CambiaTamano(f.Pic_Bitmap.Ancho(), f.Pic_Bitmap.Alto());
    for (int32_t i = NroPiezas; i >= 1; --i) {
        const int16_t posicion = static_cast<int16_t>(i);
        const Pieza &q = Piezas[OrdenPiezas[posicion]];
        if (PiezaEnSuSitio(OrdenPiezas[posicion])) {
            if (color.BackColor() == ROJO) {
                color.PonBackColor(VERDE);
            }
        } else if (color.BackColor() == VERDE) {
            color.PonBackColor(ROJO);
        }
        if (TipoPieza != 0) {
            EnmascaraPieza(posicion);
        }
        MuestraPieza(f.Pic_Imagen, posicion);
        const int32_t bx = q.X - MargenX, by = q.Y - MargenY;
        BitBlt(f.Pic_Trabajo, bx, by, AnchoPiezaTotal, AltoPiezaTotal, f.Pic_Imagen, bx, by,
               SRCCOPY);
    }
}
