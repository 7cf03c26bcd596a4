#include "board/Barajar.h"

#include "board/Render.h"
#include "core/Cronometro.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"
#include "services/Azar.h"
#include "services/Esperas.h"
#include "services/Reloj.h"

using namespace PuzzGbl;

namespace {

// Draws without end are impossible on any board the dialog can make; this
// bound only keeps an absurd geometry from hanging the deal.
constexpr int32_t MAX_SORTEOS = 100000;

// The frame: the right and bottom lines of the assembled puzzle. Its left and
// top sides fall outside the surface.
void DibujaMarco(Superficie &s) {
    s.Caja(-1, -1, AnchoPuzzle, AltoPuzzle, static_cast<Color>(ColorContraste));
}

// A piece's box may not lie across the line x = AnchoPuzzle nor across
// y = AltoPuzzle, the right and bottom frame lines extended over the board.
bool PosicionAceptada(int32_t col, int32_t fila) {
    const bool horizontal = col - MargenX > AnchoPuzzle || col + AnchoPieza + MargenX < AnchoPuzzle;
    const bool vertical = fila - MargenY > AltoPuzzle || fila + AltoPieza + MargenY < AltoPuzzle;
    return horizontal && vertical;
}

// A random spot on the work area, moved beside the always-visible panel when
// it would fall under it.
void SorteaPosicion(int16_t &col, int16_t &fila) {
    const FormTeselari &f = teselari;
    const int32_t w = f.Pic_Trabajo.Ancho(), h = f.Pic_Trabajo.Alto();
    col = static_cast<int16_t>(AnchoPuzzle);
    for (int32_t sorteos = 0; !PosicionAceptada(col, fila) && sorteos < MAX_SORTEOS; ++sorteos) {
        const double r1 = Rnd(), r2 = Rnd();
        col = static_cast<int16_t>(Int(r1 * (w - AnchoPieza) + 1));
        fila = static_cast<int16_t>(Int(r2 * (h - AltoPieza) + 1));
        const CuadroImagen &panel = f.Pic_BotonesSiempre;
        if (col > w - panel.Ancho() - AnchoPieza / 2.0 &&
            fila < panel.Alto() + f.BarraVer.Value() - AltoPieza / 2.0) {
            col =
                static_cast<int16_t>(Redondea(f.BarraHor.Value() + panel.Left - AnchoPieza / 2.0));
        }
    }
}

// The pile is mixed by 4 x NroPiezas random moves to the top.
void MezclaPila() {
    Randomize(Timer());
    for (int32_t vuelta = 0; vuelta < 4; ++vuelta) {
        for (int32_t j = 0; j < NroPiezas; ++j) {
            PiezaPrioritaria(static_cast<int16_t>(Int(NroPiezas * Rnd()) + 1));
        }
    }
}

// One piece falls: into the composite, then its box onto the screen, so the
// piece lands on the pieces below it.
void DejaCaerPieza(int16_t i) {
    FormTeselari &f = teselari;
    const Pieza &q = Piezas[OrdenPiezas[i]];
    const int32_t bx = q.X - MargenX, by = q.Y - MargenY;
    if (TipoPieza != 0) {
        EnmascaraPieza(i);
        EstampaPiezaEnImagen(bx, by);
    } else {
        MuestraPieza(f.Pic_Imagen, i);
    }
    BitBlt(f.Pic_Trabajo, bx, by, AnchoPiezaTotal, AltoPiezaTotal, f.Pic_Imagen, bx, by, SRCCOPY);
}

} // namespace

void Barajar() {
    FormTeselari &f = teselari;
    const bool restaurando = SesionRestaurando != 0;
    f.Pic_Trabajo.Cls();
    f.Pic_Imagen.QuitaImagen();
    DibujaMarco(f.Pic_Imagen);
    DibujaMarco(f.Pic_Trabajo);
    if (!restaurando) {
        PuzzleCompleto = FALSO;
        MezclaPila();
    }
    int16_t col = 0, fila = 0;
    for (int32_t i = NroPiezas; i >= 1; --i) {
        Pieza &q = Piezas[OrdenPiezas[i]];
        if (!restaurando) {
            SorteaPosicion(col, fila);
            q.X = col;
            q.Y = fila;
        }
        DejaCaerPieza(static_cast<int16_t>(i));
        EsperaVueltas(10);
    }
    if (!restaurando) {
        PartidaValida = VERDADERO;
        SegundosCronometro = 0;
        f.Pic_Cronome.Cls();
        ArrancaCronometro();
    }
    ActualizaBSInfo();
}
