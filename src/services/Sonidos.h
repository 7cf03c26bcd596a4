// Sounds and cursors.
#pragma once

#include <cstdint>
#include <string>

class Superficie;

// Plays clip 1..12 when Sonido is 1, then lets pending events run; with the
// sound off it returns at once and lets nothing through.
void ReproduceSonido(int16_t clip);

// The custom cursor of a control: pointer 99 and the named hand
// ("ManoBlanca", "ManoIndice", "ManoRoja", "ManoVerde", any case).
void PonCursor(Superficie &control, const std::string &nombre);

// Pointers by number, as the controls use them.
constexpr int16_t PUNTERO_NORMAL = 0;
constexpr int16_t PUNTERO_ESPERA = 11;
constexpr int16_t PUNTERO_PROHIBIDO = 12;
constexpr int16_t PUNTERO_PREGUNTA = 14; // arrow with a question mark: what's this
constexpr int16_t PUNTERO_CUATRO_FLECHAS = 15;
constexpr int16_t PUNTERO_PROPIO = 99;
