// Sounds.
#pragma once

#include <cstdint>

// The twelve clips, by what plays them.
namespace Clips {
constexpr int16_t Boton = 1;          // a press on a button of the two panels
constexpr int16_t Paso = 2;           // a step of the zoom, attraction or speed stepper
constexpr int16_t Selector = 3;       // a selector of the dialog changes
constexpr int16_t SalidaDialogo = 4;  // a dialog, a message or the book is left
constexpr int16_t PiezaLevantada = 5; // a piece is lifted
constexpr int16_t PiezaEnSuSitio = 6; // a piece arrives at its place
constexpr int16_t Seccion = 7;        // a section of the history book is opened
constexpr int16_t Largo = 8;          // the long one, which no routine plays
constexpr int16_t Rechazo = 9;        // a picture refused or missing, the zoom at its end
constexpr int16_t PiezaFuera = 10;    // a piece dropped away from its place, a move laid out
constexpr int16_t Tecla = 11;         // a key of the chronometer, a colour or a shape chosen
constexpr int16_t Lista = 12;         // a click in a list of the dialog
} // namespace Clips

// Plays clip 1..12 when Sonido is 1, then lets pending events run; with the
// sound off it returns at once and lets nothing through.
void ReproduceSonido(int16_t clip);
