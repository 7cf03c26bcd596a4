// What the game asks of the desktop, through hooks the platform layer fills.
//
// The engine calls these routines; the Qt layer installs the real services
// (the message dialog, the sound player, the event loop) at start, and tests
// install doubles. With nothing installed a message answers at once as if
// closed by a key, no sound is played and no event is let through.
#pragma once

#include <cstdint>
#include <string>

struct ServiciosPlataforma {
    // Shows the modal message and returns the answer: true for "Aceptar".
    // Called with lineas and botones already in MensajeLineas and
    // MensajeBotones.
    bool (*Mensaje)(const std::string &titulo, const std::string &texto) = nullptr;
    // Starts clip 1..12 asynchronously, cutting off the one still playing.
    void (*Sonido)(int16_t clip) = nullptr;
    // Lets pending events run (may re-enter any handler).
    void (*Eventos)() = nullptr;
    // Unloads the main form and ends the process (command 11).
    void (*Termina)() = nullptr;
};

// Installs the services (a copy is kept); the default has none.
void PonServiciosPlataforma(const ServiciosPlataforma &s);
const ServiciosPlataforma &Plataforma();

// Lets pending events run: the one re-entry point of the program.
void PermiteEventos();
