// Deterministic randomness and value noise for the asset generator: the
// same seed gives the same pictures on every machine and compiler.
#pragma once

#include <cmath>
#include <cstdint>

// A small xorshift generator; portable, unlike the standard distributions.
class Azar {
  public:
    explicit Azar(uint64_t semilla) : estado_(semilla * 0x9E3779B97F4A7C15ull + 1) {}
    uint64_t Siguiente() {
        estado_ ^= estado_ << 13;
        estado_ ^= estado_ >> 7;
        estado_ ^= estado_ << 17;
        return estado_;
    }
    // Uniform in [0, 1).
    double Real() { return static_cast<double>(Siguiente() >> 11) * (1.0 / 9007199254740992.0); }
    double Entre(double a, double b) { return a + (b - a) * Real(); }
    int Entero(int a, int b) { return a + static_cast<int>(Real() * (b - a + 1)); }

  private:
    uint64_t estado_;
};

// A hash of a lattice point into [0, 1).
inline double ValorReticula(int x, int y, uint32_t semilla) {
    uint32_t h = static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u +
                 semilla * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h ^= h >> 16;
    return (h & 0xFFFFFF) / 16777216.0;
}

// Smooth value noise in [0, 1) at (x, y), one octave.
inline double RuidoSuave(double x, double y, uint32_t semilla) {
    const int xi = static_cast<int>(std::floor(x));
    const int yi = static_cast<int>(std::floor(y));
    const double fx = x - xi, fy = y - yi;
    const double sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
    const double a = ValorReticula(xi, yi, semilla), b = ValorReticula(xi + 1, yi, semilla);
    const double c = ValorReticula(xi, yi + 1, semilla), d = ValorReticula(xi + 1, yi + 1, semilla);
    return (a + (b - a) * sx) * (1 - sy) + (c + (d - c) * sx) * sy;
}

// Fractal noise in [0, 1): four octaves, the first with the given scale.
inline double RuidoFractal(double x, double y, double escala, uint32_t semilla) {
    double suma = 0, peso = 0.5, total = 0;
    for (int o = 0; o < 4; ++o) {
        suma += peso * RuidoSuave(x / escala, y / escala, semilla + o * 101);
        total += peso;
        escala /= 2;
        peso /= 2;
    }
    return suma / total;
}
