// Text through the platform's text service (Rotulador).
#include <algorithm>
#include <cmath>

#include "raster/Superficie.h"

namespace {

Rotulador *rotulador = nullptr;

// A text coordinate turned to a whole pixel, floor or ceiling, kept within
// a range where the rectangle arithmetic cannot overflow.
int32_t Acotado(double v, bool hacia_arriba) {
    constexpr double limite = 268435456.0;
    if (!std::isfinite(v)) {
        return 0;
    }
    v = std::clamp(hacia_arriba ? std::ceil(v) : std::floor(v), -limite, limite);
    return static_cast<int32_t>(v);
}

} // namespace

void PonRotulador(Rotulador *r) {
    rotulador = r;
}

Rotulador *RotuladorActual() {
    return rotulador;
}

void Superficie::Print(const std::string &texto) {
    if (rotulador == nullptr) {
        return;
    }
    const double ancho = rotulador->Ancho(Letra, texto);
    const double alto = rotulador->Alto(Letra, texto);
    rotulador->Dibuja(*this, Letra, CurrentX, CurrentY, ForeColor, texto);
    Cambiado(Rectangulo{Acotado(CurrentX, false), Acotado(CurrentY, false),
                        Acotado(CurrentX + ancho, true), Acotado(CurrentY + alto, true)});
    CurrentX += ancho;
}

double Superficie::TextWidth(const std::string &texto) const {
    return rotulador != nullptr ? rotulador->Ancho(Letra, texto) : 0.0;
}

double Superficie::TextHeight(const std::string &texto) const {
    return rotulador != nullptr ? rotulador->Alto(Letra, texto) : 0.0;
}
