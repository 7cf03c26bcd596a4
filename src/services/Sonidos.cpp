#include "services/Sonidos.h"

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
