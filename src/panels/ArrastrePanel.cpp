#include "panels/ArrastrePanel.h"

#include "core/PuzzGbl.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

// The panel's place when the drag began, and its size.
int32_t inicio_x = 0, inicio_y = 0, ancho = 0, alto = 0;

void InvierteMarco(int32_t x, int32_t y) {
    teselari.Pic_Trabajo.Caja(x, y, x + ancho - 1, y + alto - 1, ColorContraste);
}

} // namespace

void EmpiezaArrastrePanel(int32_t x, int32_t y, int32_t w, int32_t h) {
    inicio_x = x;
    inicio_y = y;
    ancho = w;
    alto = h;
    PanelX = static_cast<int16_t>(x);
    PanelY = static_cast<int16_t>(y);
    teselari.Pic_Trabajo.DrawMode = DRAWMODE_INVIERTE;
}

void MueveMarcoPanel(int32_t nx, int32_t ny) {
    const FormTeselari &f = teselari;
    const int32_t hv = f.BarraHor.Value(), vv = f.BarraVer.Value();
    if (nx > f.BarraVer.Left - ancho + hv || nx < hv) {
        nx = PanelX;
    }
    if (ny > f.BarraHor.Top - alto + vv || ny < vv) {
        ny = PanelY;
    }
    // The first inversion erases the last frame. The very first one falls
    // on the panel's own place, under the panel, where nobody sees it.
    InvierteMarco(PanelX, PanelY);
    InvierteMarco(nx, ny);
    PanelX = static_cast<int16_t>(nx);
    PanelY = static_cast<int16_t>(ny);
}

void TerminaArrastrePanel() {
    FormTeselari &f = teselari;
    InvierteMarco(PanelX, PanelY);
    f.Pic_Trabajo.DrawMode = DRAWMODE_COPIA;
    // The frame that the first move drew under the panel is still in the
    // board's pixels: the place the panel leaves shows the board again.
    BitBlt(f.Pic_Trabajo, inicio_x, inicio_y, ancho, alto, f.Pic_Imagen, inicio_x, inicio_y,
           SRCCOPY);
    AuxPanel = static_cast<int16_t>(f.BarraVer.Left - ancho + f.BarraHor.Value());
    if (f.BarraVer.Value() + f.Pic_BotonesSiempre.Alto() > PanelY) {
        AuxPanel = static_cast<int16_t>(AuxPanel - f.Pic_BotonesSiempre.Ancho());
    }
    if (PanelX > AuxPanel) {
        PanelX = AuxPanel;
    }
}
