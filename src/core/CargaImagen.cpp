// The picture loader the platform installs.
#include "core/Programa.h"

#include <algorithm>

#include "raster/Superficie.h"

namespace {
CargadorImagen cargador = nullptr;
}

void PonCargadorImagen(CargadorImagen c) {
    cargador = c;
}

CargaDeImagen CargaImagen(const std::string &fichero, Superficie &destino) {
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
