// Drawing pieces on the board.
//
// Nothing is composed on Pic_Trabajo directly: the board in progress lives
// on its hidden twin Pic_Imagen, and Pic_Trabajo receives copies of regions
// of it, plus the piece in the hand.
#pragma once

#include <cstdint>

#include "raster/Superficie.h"

// Draws the piece at position `posicion` of OrdenPiezas on `destino`
// (Pic_Trabajo or Pic_Imagen). For masked pieces the caller has run
// EnmascaraPieza for that position.
void MuestraPieza(Superficie &destino, int16_t posicion);

// Paints a masked piece straight into Pic_Imagen at the corner (x, y) of its
// box: AND with the mask, then XOR with the image, no scratch surface.
void EstampaPiezaEnImagen(int32_t x, int32_t y);

// Repaints the whole board from Pic_Imagen.
void Pic_Trabajo_Paint();

// The finished puzzle gives way to the clean picture.
void RestauraBitmap();

// The reverse: the picture with its cut lines comes back over the puzzle
// area and the board is repainted (the first press after a finish).
void RecuperaContornos();

// Brings the piece at `posicion` of OrdenPiezas to the top of the pile,
// keeping the order of all the others.
void PiezaPrioritaria(int16_t posicion);

// Recounts the placed pieces and prints "placed / total" on Pic_BSInfo.
void ActualizaBSInfo();

// Whether the piece numbered k stands at its place.
bool PiezaEnSuSitio(int16_t k);
