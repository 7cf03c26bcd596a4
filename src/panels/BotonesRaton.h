// The mouse over the command buttons of both panels.
//
// `indice` is the button's index in its control array, that is the number
// of its command; any mouse button presses it.
#pragma once

#include <cstdint>

void Pic_BotonSiempre_MouseDown(int16_t indice, int16_t boton, int16_t shift, float x, float y);
void Pic_BotonDerecho_MouseDown(int16_t indice, int16_t boton, int16_t shift, float x, float y);
void Pic_BotonSiempre_MouseMove(int16_t indice, int16_t boton, int16_t shift, float x, float y);
void Pic_BotonDerecho_MouseMove(int16_t indice, int16_t boton, int16_t shift, float x, float y);

// The panels themselves and the count at their foot ignore the mouse.
void Pic_BotonesSiempre_MouseMove(int16_t boton, int16_t shift, float x, float y);
void Pic_BotonesDerecho_MouseMove(int16_t boton, int16_t shift, float x, float y);
void Pic_BSInfo_MouseMove(int16_t boton, int16_t shift, float x, float y);
