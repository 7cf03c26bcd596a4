// Finding the piece under the mouse, through the pile.
#pragma once

#include <cstdint>

// The position in OrdenPiezas of the topmost piece with an opaque pixel at
// (x, y) of Pic_Trabajo, or 0 when there is none. A transparent part of an
// upper piece's box lets the search go on below it. PiezaTemporal is left
// holding the piece found (or the last one looked at).
int16_t PiezaTocada(double x, double y);
