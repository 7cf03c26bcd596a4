#include "dialog/Rejillas.h"

#include <cstdlib>

namespace {

bool CeldaAdmitida(int32_t lado) {
    return lado >= 24 && lado <= 140;
}

} // namespace

std::vector<int16_t> RejillasOfrecidas(int32_t ancho, int32_t alto) {
    std::vector<int16_t> ofrecidas;
    for (int16_t n = 3; n <= 20; ++n) {
        if (CeldaAdmitida(ancho / n) && CeldaAdmitida(alto / n)) {
            ofrecidas.push_back(n);
        }
    }
    return ofrecidas;
}

int32_t RejillaCercana(const std::vector<int16_t> &ofrecidas, int16_t actual) {
    int32_t cercano = 99, indice = -1;
    for (size_t i = 0; i < ofrecidas.size(); ++i) {
        if (std::abs(ofrecidas[i] - actual) <= std::abs(cercano - actual)) {
            cercano = ofrecidas[i];
            indice = static_cast<int32_t>(i);
        }
    }
    return indice;
}
