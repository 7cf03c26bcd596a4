// Pic_Trabajo_MouseMove: the piece in the hand, the scrolling at the edges of
// the view, and the hover cursor.
#include <cstdint>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Seleccion.h"
#include "core/Controles.h"
#include "core/PuzzGbl.h"

using namespace PuzzGbl;

namespace {

// One large step of a bar towards its end when the hand stands at an edge of
// the view. Up and left need the mouse exactly on the first visible row or
// column; down and right past the last one, still inside the work area. Only
// the first case that holds applies.
void DesplazaEnLosBordes(double x, double y) {
    FormTeselari &f = teselari;
    int16_t lv = static_cast<int16_t>(f.BarraVer.LargeChange);
    int16_t lh = static_cast<int16_t>(f.BarraHor.LargeChange);
    const int32_t v = f.BarraVer.Value(), h = f.BarraHor.Value();
    if (y == v && y > 0) {
        if (v - lv < 0) {
            lv = static_cast<int16_t>(v);
        }
        f.BarraVer.PonValue(v - lv);
    } else if (AltoPantalla - f.BarraHor.Height + v < y && y < f.Pic_Trabajo.Alto()) {
        if (v + lv > f.BarraVer.Max()) {
            lv = static_cast<int16_t>(f.BarraVer.Max() - v);
        }
        f.BarraVer.PonValue(v + lv);
    } else if (x == h && x > 0) {
        if (h - lh < 0) {
            lh = static_cast<int16_t>(h);
        }
        f.BarraHor.PonValue(h - lh);
    } else if (AnchoPantalla - f.BarraVer.Width + h < x && x < f.Pic_Trabajo.Ancho()) {
        if (h + lh > f.BarraHor.Max()) {
            lh = static_cast<int16_t>(f.BarraHor.Max() - h);
        }
        f.BarraHor.PonValue(h + lh);
    }
}

// The cursor tells whether the piece under the mouse is at its place: green
// hand, red hand, or the default pointer over no piece.
void ActualizaCursor(double x, double y) {
    CursorTrabajoNuevo = 0;
    CursorPanel = 9; // the panels set their own again at the next entry
    if (PiezaTocada(x, y) != 0) {
        const Pieza &q = PiezaTemporal;
        CursorTrabajoNuevo = q.X == q.XCorrecta && q.Y == q.YCorrecta ? 1 : 2;
    }
    if (CursorTrabajoNuevo == CursorTrabajo) {
        return;
    }
    CuadroImagen &trabajo = teselari.Pic_Trabajo;
    switch (CursorTrabajoNuevo) {
    case 1:
        PonCursor(trabajo, "ManoVerde");
        break;
    case 2:
        PonCursor(trabajo, "ManoRoja");
        break;
    default:
        trabajo.MousePointer = PUNTERO_NORMAL;
        break;
    }
    CursorTrabajo = CursorTrabajoNuevo;
}

} // namespace

void Pic_Trabajo_MouseMove(int16_t, int16_t, float x, float y) {
    if (ModoResolver != 0 || ModoOrdenar != 0 || PiezaSoltandose != 0) {
        return;
    }
    if (PiezaLevantada != 0) {
        MuevePieza(x, y);
        DesplazaEnLosBordes(x, y);
        return;
    }
    if (ModoColocadas == 0) {
        ActualizaCursor(x, y);
    }
}
