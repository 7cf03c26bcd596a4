#include "panels/PanelCronometro.h"

#include "core/Cronometro.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "panels/ArrastrePanel.h"
#include "panels/TiempoCronometro.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// The keys of the face, bounds exclusive.
bool EnTeclaArranque(float x, float y) {
    return x > 4 && x < 30 && y > 4 && y < 14;
}

bool EnTeclaParada(float x, float y) {
    return x > 31 && x < 57 && y > 4 && y < 14;
}

constexpr int16_t CURSOR_NORMAL = 0;
constexpr int16_t CURSOR_MANO = 1;
constexpr int16_t CURSOR_INDICE = 2;
constexpr int16_t CURSOR_FORZADO = 9;

// The pointer over the face: the open hand on the handle, the pointing hand
// on a key that would change the clock, the default on the key in force.
void EligeCursor(float x, float y) {
    const bool en_marcha = RelojEnMarcha != FALSO;
    CursorPanelNuevo = CURSOR_MANO;
    if (EnTeclaArranque(x, y)) {
        CursorPanelNuevo = en_marcha ? CURSOR_NORMAL : CURSOR_INDICE;
    } else if (EnTeclaParada(x, y)) {
        CursorPanelNuevo = en_marcha ? CURSOR_INDICE : CURSOR_NORMAL;
    }
    if (CursorPanelNuevo == CursorPanel) {
        return;
    }
    CuadroImagen &panel = teselari.Pic_Cronome;
    if (CursorPanelNuevo == CURSOR_NORMAL) {
        panel.MousePointer = PUNTERO_NORMAL;
    } else if (CursorPanelNuevo == CURSOR_MANO) {
        PonCursor(panel, "ManoBlanca");
    } else {
        PonCursor(panel, "ManoIndice");
    }
    CursorPanel = CursorPanelNuevo;
}

} // namespace

void Timer1_Timer() {
    if (RelojEnMarcha == FALSO) {
        return;
    }
    ++SegundosCronometro;
    CuadroImagen &panel = teselari.Pic_Cronome;
    panel.CajaLlena(4, 19, 4 + 53 - 1, 19 + 15 - 1, 0xC0C0C0);
    panel.CurrentX = 8;
    panel.CurrentY = 21;
    panel.Print(TiempoCronometro(SegundosCronometro));
}

void Pic_Cronome_MouseDown(int16_t, int16_t, float x, float y) {
    // The click is heard only where the key acts, as the pointer said.
    if (EnTeclaArranque(x, y)) {
        if (CursorPanelNuevo == CURSOR_INDICE) {
            ReproduceSonido(Clips::Tecla);
        }
        ArrancaCronometro();
        return;
    }
    if (EnTeclaParada(x, y)) {
        if (CursorPanelNuevo == CURSOR_INDICE) {
            ReproduceSonido(Clips::Tecla);
        }
        ParaCronometro();
        return;
    }
    FormTeselari &f = teselari;
    CuadroImagen &panel = f.Pic_Cronome;
    AnteriorX = Redondea(x);
    AnteriorY = Redondea(y);
    EmpiezaArrastrePanel(f.BarraHor.Value() + panel.Left, f.BarraVer.Value() + panel.Top,
                         panel.Ancho(), panel.Alto());
    panel.MousePointer = PUNTERO_CUATRO_FLECHAS;
    ArrastrandoPanel = VERDADERO;
}

void Pic_Cronome_MouseMove(int16_t boton, int16_t, float x, float y) {
    if (boton == 1 && ArrastrandoPanel != FALSO) {
        const FormTeselari &f = teselari;
        const CuadroImagen &panel = f.Pic_Cronome;
        MueveMarcoPanel(Redondea(static_cast<float>(f.BarraHor.Value() + panel.Left) + x -
                                 static_cast<float>(AnteriorX)),
                        Redondea(static_cast<float>(f.BarraVer.Value() + panel.Top) + y -
                                 static_cast<float>(AnteriorY)));
        return;
    }
    EligeCursor(x, y);
}

void Pic_Cronome_MouseUp(int16_t, int16_t, float, float) {
    if (ArrastrandoPanel == FALSO) {
        return;
    }
    FormTeselari &f = teselari;
    TerminaArrastrePanel();
    f.Pic_Cronome.Move(PanelX - f.BarraHor.Value(), PanelY - f.BarraVer.Value());
    CursorPanel = CURSOR_FORZADO;
    ArrastrandoPanel = FALSO;
}
