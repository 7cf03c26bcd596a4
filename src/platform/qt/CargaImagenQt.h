// The picture decoders of the platform: QImageReader, which sniffs the
// content, so a run-length BMP named ".rle" reads as well.
#pragma once

#include <string>

class Superficie;

// Loads the file into the surface at its own size. False when it can't be
// read, and also for a BMP shorter than its header says (the reader would
// give rows of garbage for the missing part without an error).
bool CargaImagenQt(const std::string &fichero, Superficie &destino);

// Whether a BMP file's bytes are fewer than its header needs.
bool BmpTruncado(const std::string &fichero);
