// The piece in the hand: lifting it out of the composite and carrying it.
//
// The calling order is always PiezaPrioritaria, LevantaPieza, any number of
// MuevePieza, then the drop. The automatic moves drive the same routines with
// computed coordinates.
#pragma once

#include <cstdint>

class Region;

// Takes the piece at position 1 out of Pic_Imagen, repainting only its box,
// computes its attraction rectangle and remembers (x, y) as the grip.
void LevantaPieza(int32_t x, int32_t y);

// The attraction rectangle of a cell whose top left corner stands at (x, y):
// the cell shrunk on each side by half of (100 - FactorPegado) per cent of
// its width and height. It is left in RectIzquierda..RectAbajo and made the
// region given.
void RectanguloAtraccion(int32_t x, int32_t y, Region &region);

// Moves the piece at position 1 by the distance from the grip to (x, y):
// drawn at its new place first, then the vacated part of the old box is
// repaired from Pic_Imagen through a clip region.
void MuevePieza(double x, double y);
