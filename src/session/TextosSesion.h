// The messages of the saved game's restore: a picture outside the limits, a
// picture lost, a file that can't be opened.
#pragma once

#include <cstdint>
#include <string>

#include "services/Mensajes.h"

// "Imagen no válida": the picture at its zoom measures w x h.
Mensaje MensajeImagenRechazada(int64_t ancho, int64_t alto);

// "Cargar Imagen": the picture of the last session is not found; its path
// keeps to one line.
Mensaje MensajeImagenPerdida(const std::string &fichero);

// "Error leyendo fichero de datos iniciales", by the error's number.
Mensaje MensajeErrorIni(int16_t numero, const std::string &unidad);
