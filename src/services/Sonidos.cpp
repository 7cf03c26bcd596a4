#include "services/Sonidos.h"

#include <cctype>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"

using namespace PuzzGbl;

void ReproduceSonido(int16_t clip) {
    if (Sonido != 1) {
        return;
    }
    if (Plataforma().Sonido != nullptr && clip >= 1 && clip <= 12) {
        Plataforma().Sonido(clip);
    }
    PermiteEventos();
}

void PonCursor(Superficie &control, const std::string &nombre) {
    std::string nuevo;
    for (char c : nombre) {
        nuevo += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    control.MousePointer = PUNTERO_PROPIO;
    control.MouseIcon = nuevo;
}
