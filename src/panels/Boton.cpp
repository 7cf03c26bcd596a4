// The look of one command button, up or down.
#include <array>
#include <utility>
#include <vector>

#include "core/PuzzGbl.h"
#include "panels/Paneles.h"
#include "panels/SemillasBotones.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

// The drop shadow of every image, dark blue, the one colour the flood seeks.
constexpr Color COLOR_SOMBRA = 0x800000;

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
        for (const auto &[x, y] : SemillasSombra()[boton]) {
            ExtFloodFill(control, x, y, COLOR_SOMBRA, FLOODFILLSURFACE);
        }
    }
    control.Cambiado(control.Limites());
}
