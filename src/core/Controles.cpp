#include "core/Controles.h"

#include <algorithm>

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
