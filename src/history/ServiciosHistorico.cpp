#include "history/ServiciosHistorico.h"

#include "history/FormHistoric.h"

namespace {
ServiciosHistorico servicios;
}

void PonServiciosHistorico(const ServiciosHistorico &s) {
    servicios = s;
}

const ServiciosHistorico &ServiciosDelHistorico() {
    return servicios;
}

void AbreLibroHistorico() {
    FormHistoric Historic;
    Historic.Form_Load();
    if (servicios.MuestraModal != nullptr) {
        servicios.MuestraModal(Historic);
    }
}
