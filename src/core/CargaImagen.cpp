// The picture loader the platform installs.
#include "core/Programa.h"

#include <algorithm>

#include "core/Plataforma.h"
#include "raster/Superficie.h"

CargaDeImagen CargaImagen(const std::string &fichero, Superficie &destino) {
    const auto cargador = Plataforma().CargaImagen;
    if (cargador == nullptr) {
        DejaImagenEnBlanco(destino);
        return {};
    }
    return cargador(fichero, destino);
}

void DejaImagenEnBlanco(Superficie &destino) {
    destino.QuitaImagen();
    destino.CambiaTamano(320, 240);
    for (int32_t y = 0; y < destino.Alto(); ++y) {
        std::fill_n(destino.Fila(y), destino.Ancho(), APixel(COLOR_BLANCO));
    }
    destino.Cambiado(destino.Limites());
}
