// The picture loader the platform installs.
#include "core/Sesion.h"

namespace {
CargadorImagen cargador = nullptr;
}

void PonCargadorImagen(CargadorImagen c) {
    cargador = c;
}

bool CargaImagen(const std::string &fichero, Superficie &destino) {
    return cargador != nullptr && cargador(fichero, destino);
}
