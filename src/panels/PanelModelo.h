// The model panel: a drag of Pic_Muestra with the left button.
//
// Pic_Muestra is a child of Pic_Trabajo: its Left and Top are board
// coordinates, and it scrolls with the board. X and Y of its mouse events
// are pixels of the model. Only the left button counts.
#pragma once

#include <cstdint>

void Pic_Muestra_MouseDown(int16_t boton, int16_t shift, float x, float y);
void Pic_Muestra_MouseMove(int16_t boton, int16_t shift, float x, float y);
void Pic_Muestra_MouseUp(int16_t boton, int16_t shift, float x, float y);
