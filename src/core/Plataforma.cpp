#include "core/Plataforma.h"

#include "raster/Superficie.h"

namespace {
ServiciosPlataforma servicios;
}

void InstalaPlataforma(const ServiciosPlataforma &s) {
    servicios = s;
    // The folder is kept without a closing "/" unless it is the root.
    std::string &carpeta = servicios.DirectorioPrograma;
    while (carpeta.size() > 1 && carpeta.back() == '/') {
        carpeta.pop_back();
    }
    // The raster layer draws text through the same service.
    PonRotulador(servicios.Texto);
}

const ServiciosPlataforma &Plataforma() {
    return servicios;
}

void PermiteEventos() {
    if (servicios.Eventos != nullptr) {
        servicios.Eventos();
    }
}
