// The messages of the customisation dialog's picture column and zoom.
#pragma once

#include <cstdint>

#include "services/Mensajes.h"

// "Imagen no válida": no zoom brings a file of w x h within the limits.
Mensaje MensajeImagenNoValida(int64_t ancho, int64_t alto);

// "Imagen fuera de límites": the zoom was changed for a file of w x h.
Mensaje MensajeFueraDeLimites(int64_t ancho, int64_t alto);

// "Imagen fuera de límites": a step of the zoom would leave the limits.
Mensaje MensajeLimiteZoom();

// "Imagen no válida": the file's path holds a double quote or a line break,
// which the saved game cannot keep.
Mensaje MensajeNombreNoEscribible();
