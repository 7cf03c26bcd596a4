// The player's hand on the board: mouse events of Pic_Trabajo.
//
// Button 1 is the left button, 2 the right one; X and Y are pixels of
// Pic_Trabajo (the scrolling already included).
#pragma once

#include <cstdint>

#include "services/Mensajes.h"

void Pic_Trabajo_MouseDown(int16_t boton, int16_t shift, float x, float y);
void Pic_Trabajo_MouseMove(int16_t boton, int16_t shift, float x, float y);
void Pic_Trabajo_MouseUp(int16_t boton, int16_t shift, float x, float y);

// The message of a puzzle finished by hand.
Mensaje MensajePuzzleResuelto();
