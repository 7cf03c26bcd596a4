// The two button panels.
#pragma once

#include <cstdint>

class Superficie;

// Lays out and draws the always-visible panel, with the count of placed
// pieces at its foot: one column when it fits above the lower scroll bar,
// else two. The chronometer is pushed left of it when it would be covered.
void DibujaBotonesSiempre();

// Opens the pop-up panel at the mouse (x, y on Pic_Trabajo, taken as form
// coordinates as they stand), kept on screen clear of both scroll bars.
// With no button allocated to it nothing happens.
void DibujaBotonesDerecho(float x, float y);

// Draws button `boton` up or down (by BotonPulsado) on the control given:
// down is the same image two pixels further right and down, without its
// shadow.
void DibuBot(int16_t boton, Superficie &control);

// Sets (Pistas 1) or clears the tooltips of all 22 button surfaces.
void ActualizaPistas();
