#include "services/Azar.h"

#include <cstring>
#include <random>

namespace {

std::mt19937 &Generador() {
    static std::mt19937 g(5489u);
    return g;
}

} // namespace

void Randomize(double semilla) {
    // Single precision, as the clock of seconds reaches it.
    float s = static_cast<float>(semilla);
    uint32_t bits = 0;
    std::memcpy(&bits, &s, sizeof bits);
    Generador().seed(bits);
}

double Rnd() {
    // 24 random bits: every value is exact in single precision and below 1.
    return static_cast<double>(Generador()() >> 8) / 16777216.0;
}
