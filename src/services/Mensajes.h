// The one modal message of the game.
#pragma once

#include <cstdint>
#include <string>

// Shows the message with room for `lineas` lines of text and either the
// single button "Salir" (botones 1) or "Aceptar" and "Rechazar". Returns
// when the dialog has closed; the answer of a two-button message stands in
// RespuestaMensaje.
void MuestraMensaje(const std::string &titulo, const std::string &texto, int16_t lineas,
                    int16_t botones);
