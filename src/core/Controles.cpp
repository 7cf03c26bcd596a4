#include "core/Controles.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

// A place rounded to the nearest whole pixel, halves to even (std::nearbyint
// in the default rounding mode); the old one when v is unusable.
int32_t PosicionRedondeada(double v, int32_t antes) {
    if (!std::isfinite(v) || std::fabs(v) > 2147483520.0) {
        return antes;
    }
    return static_cast<int32_t>(std::nearbyint(v));
}

} // namespace

CuadroImagen::CuadroImagen(const std::string &nombre, const std::string &padre, int32_t left,
                           int32_t top, int32_t ancho, int32_t alto, Color fondo, bool borde)
    : Superficie(ancho, alto, fondo), Borde(borde) {
    Nombre = nombre;
    Padre = padre;
    Left = left;
    Top = top;
}

void CuadroImagen::Move(double left, double top) {
    Left = PosicionRedondeada(left, Left);
    Top = PosicionRedondeada(top, Top);
}

void CuadroImagen::Move(double left, double top, double ancho, double alto) {
    Move(left, top);
    CambiaTamano(ancho, alto);
}

void PonCursor(EstadoControl &control, const std::string &nombre) {
    control.MousePointer = PUNTERO_PROPIO;
    control.MouseIcon = nombre;
    for (char &c : control.MouseIcon) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
}

void BarraDesplazamiento::PonMax(int32_t max) {
    max_ = max;
    if (value_ > max_) {
        PonValue(max_);
    }
}

void BarraDesplazamiento::PonValue(int32_t value) {
    int32_t nuevo = std::clamp(value, min_, std::max(min_, max_));
    if (nuevo == value_) {
        return;
    }
    value_ = nuevo;
    if (Change) {
        Change();
    }
}
