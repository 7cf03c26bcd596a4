#include "services/Plataforma.h"

namespace {
ServiciosPlataforma servicios;
}

void PonServiciosPlataforma(const ServiciosPlataforma &s) {
    servicios = s;
}

const ServiciosPlataforma &Plataforma() {
    return servicios;
}

void PermiteEventos() {
    if (servicios.Eventos != nullptr) {
        servicios.Eventos();
    }
}
