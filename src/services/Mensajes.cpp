#include "services/Mensajes.h"

#include "core/PuzzGbl.h"
#include "services/Plataforma.h"

using namespace PuzzGbl;

void MuestraMensaje(const std::string &titulo, const std::string &texto, int16_t lineas,
                    int16_t botones) {
    MensajeLineas = lineas;
    MensajeBotones = botones;
    if (botones != 1) {
        RespuestaMensaje = FALSO;
    }
    const auto mensaje = Plataforma().Mensaje;
    // With no dialog at hand a message closes as if by a key: every key
    // means "Aceptar" in a two-button message.
    const bool acepta = mensaje != nullptr ? mensaje(titulo, texto) : true;
    if (botones != 1) {
        RespuestaMensaje = acepta ? VERDADERO : FALSO;
    }
}
