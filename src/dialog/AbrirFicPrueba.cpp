// AbrirFic's attraction test: a small piece walks over a drawn board towards
// its place, blinks where the attraction of the present factor would catch
// it, and jumps the rest of the way.
#include <cmath>

#include "core/PuzzGbl.h"
#include "dialog/FormAbrirFic.h"
#include "services/Esperas.h"

using namespace PuzzGbl;

namespace {

constexpr int32_t INICIO_X = 56, INICIO_Y = 45;
constexpr int32_t PASOS = 41;       // 41 diagonal steps from the start to the place
constexpr int32_t PASOS_FIJOS = 15; // walked whatever the factor
constexpr int32_t ALCANCE = 26;     // the rest, shared between walk and jump
constexpr Color GRIS = 0xC0C0C0;

} // namespace

// A board of 4 x 3 cells of 31 x 26 pixels, the top right one empty.
void FormAbrirFic::DibujaPrueba() {
    Pic_PruebaPeq.Move(97, 4);
    Pic_Prueba.Caja(4, 4, 4 + 124, 4 + 78, COLOR_NEGRO);
    Pic_Prueba.CajaLlena(98, 4, 98 + 31, 4 + 26, GRIS);
    for (int x : {35, 66, 97}) {
        Pic_Prueba.Line(x, 4, x, 4 + 78, COLOR_NEGRO);
    }
    for (int y : {30, 56}) {
        Pic_Prueba.Line(4, y, 4 + 124, y, COLOR_NEGRO);
    }
}

void FormAbrirFic::Bot_Prueba_Click() {
    PosicionX = INICIO_X;
    PosicionY = INICIO_Y;
    Pic_PruebaPeq.Move(INICIO_X, INICIO_Y);
    const int32_t k = static_cast<int32_t>(std::floor((100 - FactorPegado) * ALCANCE / 100.0));
    const int32_t n = k + PASOS_FIJOS;
    for (int32_t i = 1; i <= n; ++i) {
        Refresca();
        Pic_PruebaPeq.Move(INICIO_X + i, INICIO_Y - i);
        EsperaTiempo(4);
    }
    for (int vez = 0; vez < 6; ++vez) {
        Pic_PruebaPeq.Visible = false;
        Refresca();
        EsperaTiempo(15);
        Pic_PruebaPeq.Visible = true;
        Refresca();
        EsperaTiempo(12);
    }
    // No pause here: the eye sees one jump.
    for (int32_t i = k + 1; i <= ALCANCE; ++i) {
        Pic_PruebaPeq.Move(INICIO_X + PASOS_FIJOS + i, INICIO_Y - PASOS_FIJOS - i);
    }
    static_assert(PASOS == PASOS_FIJOS + ALCANCE);
}
