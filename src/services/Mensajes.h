// The one modal message of the game, and what its texts are made of.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

// A message as its caller states it: the title, the text, the lines the
// dialog makes room for (a line the label wraps counts as two) and the
// buttons, 1 for "Salir", 2 for "Aceptar" and "Rechazar".
struct Mensaje {
    std::string Titulo;
    std::string Texto;
    int16_t Lineas = 1;
    int16_t Botones = 1;
};

// Shows the message with room for `lineas` lines of text and either the
// single button "Salir" (botones 1) or "Aceptar" and "Rechazar". Returns
// when the dialog has closed; the answer of a two-button message stands in
// RespuestaMensaje.
void MuestraMensaje(const std::string &titulo, const std::string &texto, int16_t lineas,
                    int16_t botones);
void MuestraMensaje(const Mensaje &m);

// The lines of a text, each but the last followed by NuevaLinea.
std::string UneLineas(std::initializer_list<std::string> lineas);

// A number as a message writes it: a leading blank, no trailing one.
std::string ConBlanco(int64_t n);

// A line that must not wrap in the message's label (a file's path): when the
// platform measures it wider than the label, characters are taken out of its
// middle and "…" stands for them, keeping its start and its end.
std::string LineaQueCabe(const std::string &linea);
