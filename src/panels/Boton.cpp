// The look of one command button, up or down.
#include <array>
#include <utility>
#include <vector>

#include "core/PuzzGbl.h"
#include "panels/Paneles.h"
#include "platform/raster/Raster.h"

using namespace PuzzGbl;

namespace {

// The drop shadow of every image, dark blue, the one colour the flood seeks.
constexpr Color COLOR_SOMBRA = 0x800000;

using Semilla = std::pair<int32_t, int32_t>;

// Points inside each image's shadow, in control coordinates of the pressed
// position. Some shadows fall apart into several pieces; each needs a seed.
const std::array<std::vector<Semilla>, 12> semillas = {{
    {},
    {{51, 51}},
    {{43, 51}, {44, 17}},
    {{50, 50}},
    {{50, 50}, {19, 19}, {22, 32}},
    {{49, 46}},
    {{51, 51}, {30, 22}, {26, 16}},
    {{21, 51}, {35, 51}, {51, 51}},
    {{23, 23}, {49, 40}, {33, 51}},
    {{51, 51}},
    {{51, 51}},
    {{14, 37}},
}};

} // namespace

void DibuBot(int16_t boton, Superficie &control) {
    if (boton < 1 || boton > 11) {
        return;
    }
    const bool pulsado = BotonPulsado[boton] != FALSO;
    const int32_t desplazamiento = pulsado ? 5 : 3;
    PosicionX = PosicionY = static_cast<float>(desplazamiento);
    control.Cls();
    BitBlt(control, desplazamiento, desplazamiento, 48, 48, teselari.Pic_BmpBoton,
           (boton - 1) * 49 + 1, 1, SRCCOPY);
    if (pulsado) {
        // The brush of the button is its grey: the shadow is gone.
        for (const auto &[x, y] : semillas[boton]) {
            ExtFloodFill(control, x, y, COLOR_SOMBRA, FLOODFILLSURFACE);
        }
    }
    control.Cambiado(control.Limites());
}
