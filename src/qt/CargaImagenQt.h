// The loader the game installs: the decoder is chosen by the file's
// content, so a run-length bitmap named ".rle" reads as a bitmap, and a
// picture of another kind under one of the game's names doesn't read.
#pragma once

#include <string>

#include "core/Programa.h"

class QImage;
class Superficie;

// Loads the file into the surface at its own size, or reduced when it has
// more pixels than are decoded whole (TamanoDecodificado); the result
// states the file's own size either way. A file that is missing,
// can't be decoded or is cut short leaves the surface a white 320 x 240;
// so does one stating a size past use, which isn't decoded.
CargaDeImagen CargaImagenQt(const std::string &fichero, Superficie &destino);
