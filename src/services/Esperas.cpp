#include "services/Esperas.h"

#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "services/Reloj.h"

using namespace PuzzGbl;

void CalibraVelocidad() {
    VueltasPorSegundo = 0.0;
    Cronometraje c;
    while (c.Transcurrido() < 1.0) {
        VueltasPorSegundo += 1.0;
    }
}

double DuracionVueltas(int32_t veces) {
    if (veces <= 0 || VueltasPorSegundo <= 0.0) {
        return 0.0;
    }
    const double limite = ((100 - Velocidad) / 50.0) * (VueltasPorSegundo / 3.0);
    if (limite <= 0.0) {
        return 0.0;
    }
    return veces * limite / (VueltasPorSegundo * VUELTAS_POR_PASADA);
}

void EsperaVueltas(int32_t veces) {
    // The passes are spent against the clock rather than counted, so no
    // optimiser can take them away and no machine runs them faster.
    const double segundos = DuracionVueltas(veces);
    if (segundos <= 0.0) {
        return;
    }
    Cronometraje c;
    while (c.Transcurrido() < segundos) {
    }
}

void EsperaTiempo(int32_t centesimas) {
    const double segundos = ((100 - Velocidad) / 100.0) * (centesimas / 100.0);
    // The end is compared in single precision, as the clock gives it.
    Cronometraje c;
    while (Simple(segundos) > Simple(c.Transcurrido())) {
    }
}
