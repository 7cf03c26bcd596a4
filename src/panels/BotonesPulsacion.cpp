// A press on a command button, in either panel.
#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "panels/BotonesRaton.h"
#include "panels/Comandos.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// The pop-up goes away first, whichever panel was used; the click is heard
// before the command runs.
void PulsaDesdePanel(int16_t indice, bool desde_derecho) {
    teselari.Pic_BotonesDerecho.Visible = false;
    if (desde_derecho) {
        // The panel lay over the board.
        Pic_Trabajo_Paint();
    }
    ReproduceSonido(Clips::Boton);
    PulsaBoton(indice);
}

} // namespace

void Pic_BotonSiempre_MouseDown(int16_t indice, int16_t, int16_t, float, float) {
    PulsaDesdePanel(indice, false);
}

void Pic_BotonDerecho_MouseDown(int16_t indice, int16_t, int16_t, float, float) {
    PulsaDesdePanel(indice, true);
}
