#include "board/Trayecto.h"

#include "board/Arrastre.h"
#include "core/PuzzGbl.h"
#include "services/Esperas.h"

using namespace PuzzGbl;

namespace {

constexpr int32_t PASO = 14;

int32_t Signo(double v) {
    return (v > 0) - (v < 0);
}

} // namespace

void LlevaPiezaA(int32_t tx, int32_t ty) {
    const Pieza &q = Piezas[OrdenPiezas[1]];
    int32_t dx = Signo(q.X - tx) * PASO, dy = Signo(q.Y - ty) * PASO;
    // The grip is the piece's own corner, so each move is given the piece's
    // next position.
    LevantaPieza(q.X, q.Y);
    while (q.X != tx || q.Y != ty) {
        if (q.X == tx) {
            dx = 0;
        }
        if (q.Y == ty) {
            dy = 0;
        }
        AuxColumna = static_cast<float>(q.X - dx);
        AuxFila = static_cast<float>(q.Y - dy);
        if (Signo(AuxColumna - static_cast<float>(tx)) != Signo(dx)) {
            AuxColumna = static_cast<float>(tx);
        }
        if (Signo(AuxFila - static_cast<float>(ty)) != Signo(dy)) {
            AuxFila = static_cast<float>(ty);
        }
        MuevePieza(AuxColumna, AuxFila);
        EsperaVueltas(18);
    }
}
