// Between Qt's pictures and the engine's surfaces.
#pragma once

#include "qt/ImagenQt.h"

#include <QImage>
#include <optional>
#include <string>

#include "raster/Superficie.h"

// The pixels of a surface as a picture of its own (a deep copy). A surface of
// no pixels gives a null picture.
QImage ImagenDeSuperficie(const Superficie &s);

// Writes the surface as a PNG file. False, with a reason in `error`, when the
// surface has no pixels or the file cannot be written.
bool EscribePng(const Superficie &s, const std::string &ruta, std::string &error);

// Reads a picture file, turned as its metadata says. Nothing, with a reason
// in `error`, when it is missing or unreadable.
std::optional<QImage> LeeImagen(const std::string &ruta, std::string &error);
