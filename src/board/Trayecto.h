// The animated trip of a piece, the hand of the automatic moves.
#pragma once

#include <cstdint>

// Lifts the piece at position 1 and carries it to (tx, ty) in steps of 14
// pixels on each axis, with a paced delay after each: at 45 degrees until
// one axis is done, then straight along the other. The last step of an axis
// ends on the target. The piece stays out of Pic_Imagen.
void LlevaPiezaA(int32_t tx, int32_t ty);
