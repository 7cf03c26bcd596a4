// The two button panels.
#pragma once

#include <cstdint>

class Superficie;

// Lays out and draws the always-visible panel, with the count of placed
// pieces at its foot.
void DibujaBotonesSiempre();

// Opens the pop-up panel at the mouse (x, y on Pic_Trabajo), kept on screen.
void DibujaBotonesDerecho(float x, float y);

// Draws button `boton` up or down (by BotonPulsado) on the control given.
void DibuBot(int16_t boton, Superficie &control);
