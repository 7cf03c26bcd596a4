// Helpers shared by the benchmarks: a generated picture and a game set up
// headless on a 1920 x 1080 screen.
#pragma once

#include <cstdint>

#include "raster/Superficie.h"

// The size of the picture every benchmark cuts.
constexpr int32_t ANCHO_IMAGEN = 1024;
constexpr int32_t ALTO_IMAGEN = 768;

// Sizes the surface to ANCHO_IMAGEN x ALTO_IMAGEN and fills it with a
// deterministic colourful picture: gradients, a chequer of tiles, rings and
// noise from a fixed-seed generator. Always the same pixels.
void ImagenGenerada(Superficie &s);

// How the pieces stand once the game is set up.
enum class Reparto {
    Barajado, // a real deal: mixed pile, random places, painted
    EnCasa,   // restore mode: every piece at home, the pile painted
    SinPintar // restore mode: the cut only, pieces at home, nothing painted
};

// Sets up one game from scratch: initial values, screen 1920 x 1080, n cells
// per side, the given cut, fastest speed without delays, the generated
// picture, PreparaBitmap, then the pieces as `reparto` says.
void PreparaPartida(int16_t n, int16_t tipo, Reparto reparto);

// Every piece at one place, the middle of the work area, the order kept;
// the pile painted again (restore mode) so the composite matches.
void ApilaPiezas();

// The position in OrdenPiezas of the piece numbered k (0 if absent).
int16_t PosicionDePieza(int16_t k);

// The number of the piece whose home is row `fila`, column `col`.
int16_t PiezaDeCelda(int16_t n, int16_t fila, int16_t col);
