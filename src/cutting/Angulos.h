// Angles of the cut.
//
// Every angle of the outlines is given in degrees and turned into radians
// with 3.141593 / 180, not the exact value, and reaches the drawing as a
// single precision value.
#pragma once

constexpr double RADIANES_POR_GRADO = 0.017453294444444444;

// Degrees to the radians that the drawing receives.
inline double Radianes(double grados) {
    return static_cast<double>(static_cast<float>(grados * RADIANES_POR_GRADO));
}
