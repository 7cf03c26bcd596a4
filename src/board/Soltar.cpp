// Pic_Trabajo_MouseUp: the drop, the attraction to the piece's place, the
// view limits of a free piece and the end of the game.
#include <cstdint>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/Arriba.h"
#include "core/Cronometro.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// A free piece is kept out from under the always-visible panel and keeps at
// least half of its cell inside the view. Each limit works on what the one
// before left.
void LimitaALaVista(Pieza &q) {
    const FormTeselari &f = teselari;
    const CuadroImagen &panel = f.Pic_BotonesSiempre;
    const int32_t hv = f.BarraHor.Value(), vv = f.BarraVer.Value();
    const double medioAncho = AnchoPieza / 2.0, medioAlto = AltoPieza / 2.0;
    if (q.X > panel.Left + hv - medioAncho && q.Y < panel.Alto() + vv - AltoPieza) {
        q.X = Redondea(panel.Left + hv - medioAncho);
    }
    if (q.Y < vv - medioAlto) {
        q.Y = Redondea(vv - medioAlto);
    }
    if (q.Y > f.BarraHor.Top + vv - medioAlto) {
        q.Y = Redondea(f.BarraHor.Top + vv - medioAlto);
    }
    if (q.X < hv - medioAncho) {
        q.X = Redondea(hv - medioAncho);
    }
    if (q.X > f.BarraVer.Left + hv - medioAncho) {
        q.X = Redondea(f.BarraVer.Left + hv - medioAncho);
    }
}

// The piece at the top of the pile goes back into the board, attracted home
// or kept in the view.
void SueltaPieza() {
    FormTeselari &f = teselari;
    {
        Pieza &q = Piezas[OrdenPiezas[1]];
        // The attraction rectangle around the spot where the piece was let go.
        RectanguloAtraccion(q.X, q.Y, RegionSuelta);
        if (CombineRgn(RegionRecorte, RegionPieza, RegionSuelta, RGN_AND) != NULLREGION) {
            // Wipes the piece from where it was let go; the jump is immediate.
            const int32_t bx = q.X - MargenX, by = q.Y - MargenY;
            BitBlt(f.Pic_Trabajo, bx, by, AnchoPiezaTotal, AltoPiezaTotal, f.Pic_Imagen, bx, by,
                   SRCCOPY);
            q.X = q.XCorrecta;
            q.Y = q.YCorrecta;
        }
    }
    // The sound may let events through: the piece is looked up again after it.
    if (PiezaEnSuSitio(OrdenPiezas[1])) {
        ReproduceSonido(Clips::PiezaEnSuSitio);
    } else {
        ReproduceSonido(Clips::PiezaFuera);
        LimitaALaVista(Piezas[OrdenPiezas[1]]);
    }
    // A command run during the sound may have used the mask surfaces.
    if (TipoPieza != 0) {
        EnmascaraPieza(1);
    }
    MuestraPieza(f.Pic_Trabajo, 1);
    MuestraPieza(f.Pic_Imagen, 1);
    ActualizaBSInfo();
}

// The player's game ends here and nowhere else.
void TerminaPartida() {
    ParaCronometro();
    RestauraBitmap();
    MuestraMensaje(MensajePuzzleResuelto());
    // A fair game enters the history book once the message is acknowledged.
    // A deal is entered once: PartidaValida is cleared with the entry, so
    // finishing the same deal again (a piece lifted and dropped back, also
    // after a restart, since the flag is saved) adds nothing, and the first
    // page of the book then says that this game no longer goes in.
    if (PartidaValida != FALSO) {
        Llama(Arriba().AnadeHistorico);
        PartidaValida = FALSO;
    }
}

} // namespace

// A press that comes while a drop is under way (during its sound, or while the
// message of the end stands) is refused by Pic_Trabajo_MouseDown: the drop has
// to end first, or its piece would never get back into Pic_Imagen. The release
// of such a press is refused here too: it would drop the same piece a second
// time and clear the flags of the drop still running.
void Pic_Trabajo_MouseUp(int16_t, int16_t, float x, float y) {
    if (PiezaSoltandose != 0) {
        return;
    }
    if (PiezaLevantada != 0 && ModoResolver == 0) {
        PiezaSoltandose = VERDADERO;
        SueltaPieza();
        if (PiezasColocadas == NroPiezas) {
            TerminaPartida();
        }
    }
    PiezaLevantada = FALSO;
    PiezaSoltandose = FALSO;
    Pic_Trabajo_MouseMove(0, 0, x, y);
}

Mensaje MensajePuzzleResuelto() {
    return {"TESELARI", "Ha conseguido resolver el puzzle", 1, 1};
}
