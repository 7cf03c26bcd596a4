// The cutting of the picture into a puzzle.
#pragma once

#include <cstdint>

// Turns the picture in Pic_Origin and the settings into a puzzle ready to be
// dealt: sizes every surface, lays out the scroll bars, builds the model,
// draws the cut lines, prepares the masks' sources and gives every piece its
// home. Deals the pieces unless SesionRestaurando is set.
void PreparaBitmap();

// Gives every piece its home, puts it there and OrdenPiezas in order; the
// two pieces of a double cell share the cell.
void ColocaPiezasEnCasa();

// The two piece templates of an irregular puzzle on Pic_Temporal, with the
// one-pixel correction (AjusteX, AjusteY).
void ConstruyePlantillas();

// The cut lines of rectangles (type 0) and irregular pieces (type 1) into
// Pic_Bitmap.
void DibujaCortesSimples();

// The figures of a double puzzle into Pic_Mascara and their outlines into
// Pic_Bitmap (types 2 to 5).
void DibujaPiezasDobles();

// The mask and the image of the piece at position i of OrdenPiezas, in
// Pic_PiezaMascara and Pic_PiezaImagen.
void EnmascaraPieza(int16_t i);
