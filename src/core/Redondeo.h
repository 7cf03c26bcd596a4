// The rounding rules of the game.
//
// A value that is rounded goes to the nearest integer, halves to even (2.5
// gives 2, 3.5 gives 4). Int is the largest integer not above the value. A
// backslash division rounds both operands that way and then divides,
// dropping the remainder.
#pragma once

#include <cmath>
#include <cstdint>

// Nearest integer, halves to even.
inline double RedondeaPar(double v) {
    double r = std::floor(v);
    double resto = v - r;
    if (resto > 0.5 || (resto == 0.5 && std::fmod(r, 2.0) != 0.0)) {
        r += 1.0;
    }
    return r;
}

// Nearest integer, halves to even, as a 32-bit integer.
inline int32_t Redondea(double v) {
    return static_cast<int32_t>(RedondeaPar(v));
}

// The largest integer not above the value.
inline int32_t Int(double v) {
    return static_cast<int32_t>(std::floor(v));
}

// Integer division with the remainder dropped, of two rounded operands.
inline int32_t DivEntera(double a, double b) {
    int32_t d = Redondea(b);
    if (d == 0) {
        return 0;
    }
    return Redondea(a) / d;
}

// A single-precision step: the value rounded to the nearest float.
inline double Simple(double v) {
    return static_cast<double>(static_cast<float>(v));
}
