// Sounds.
#pragma once

#include <cstdint>

// Plays clip 1..12 when Sonido is 1, then lets pending events run; with the
// sound off it returns at once and lets nothing through.
void ReproduceSonido(int16_t clip);
