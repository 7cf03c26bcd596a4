#include "board/Automaticos.h"

#include <cmath>
#include <cstdint>

#include "board/Arrastre.h"
#include "board/Render.h"
#include "board/Trayecto.h"
#include "core/Arriba.h"
#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// The piece at the top of the pile, arrived, goes back into the composite.
// A command run during the sound may have used the mask surfaces.
void DejaPiezaEnImagen() {
    if (TipoPieza != 0) {
        EnmascaraPieza(1);
    }
    MuestraPieza(teselari.Pic_Imagen, 1);
}

// The end of a long command: its button goes up and the board gets its
// default pointer back.
void SueltaBoton(int16_t boton) {
    BotonPulsado[boton] = FALSO;
    Llama<int16_t, Superficie &>(Arriba().DibuBot, boton, teselari.Pic_BotonSiempre[boton]);
    teselari.Pic_Trabajo.MousePointer = PUNTERO_NORMAL;
}

// Where OrdenarPiezas puts the next piece: a column at the right of the work
// area, beside the panel, filled downwards, then the row at its foot filled
// leftwards, then the same one ring further in.
struct Anillos {
    int16_t tx, ty; // the next spot
    int16_t cx;     // the column of the ring being filled
    int16_t ymax;   // the lowest row allowed in this ring
    float f;        // distance between neighbours, in boxes
    bool bajando;   // filling the column, not the row

    void Avanza() {
        const int32_t sy = Int(f * static_cast<float>(AltoPiezaTotal)),
                      sx = Int(f * static_cast<float>(AnchoPiezaTotal));
        if (bajando) {
            if (ty + sy <= ymax) {
                ty = static_cast<int16_t>(ty + sy);
            } else {
                cx = tx;
                bajando = false;
            }
        }
        if (!bajando) {
            if (tx - sx >= 0) {
                tx = static_cast<int16_t>(tx - sx);
            } else {
                tx = static_cast<int16_t>(cx - sx);
                ymax = static_cast<int16_t>(ty - sy);
                ty = 0;
                bajando = true;
            }
        }
    }
};

Anillos PrimerAnillo() {
    const double w = teselari.Pic_Trabajo.Ancho(), h = teselari.Pic_Trabajo.Alto();
    const double p = teselari.Pic_BotonesSiempre.Ancho();
    Anillos a{};
    a.tx = static_cast<int16_t>(Redondea(w - p - AnchoPiezaTotal));
    a.ty = 0;
    a.cx = a.tx;
    a.ymax = static_cast<int16_t>(Redondea(h - AltoPiezaTotal));
    const double n = Redondea(std::sqrt(static_cast<double>(NroPiezas - PiezasColocadas)) + 1);
    a.f = static_cast<float>(((w - p) / n) / AnchoPiezaTotal);
    if (static_cast<double>(AnchoPiezaTotal) / AltoPiezaTotal > 3) {
        a.f = static_cast<float>((h / n) / AltoPiezaTotal);
    }
    // Above this the pieces are not spread any further; below 1 they overlap.
    if (a.f > 1.1f) {
        a.f = 1.1f;
    }
    a.bajando = true;
    return a;
}

} // namespace

// Treats the pile from the bottom: a piece that is not placed comes to the
// top and travels to the next spot, a placed one stays and the look goes one
// position up. Events run between pieces; a cleared ModoOrdenar stops it.
void OrdenarPiezas() {
    teselari.Pic_Trabajo.MousePointer = PUNTERO_ESPERA;
    CursorTrabajo = 9;
    Anillos anillo = PrimerAnillo();
    int16_t p = NroPiezas;
    const int32_t vueltas = NroPiezas;
    for (int32_t vuelta = 0; vuelta < vueltas; ++vuelta) {
        if (PiezaEnSuSitio(OrdenPiezas[p])) {
            --p;
        } else {
            PiezaPrioritaria(p); // position p now holds the next piece up
            LlevaPiezaA(anillo.tx, anillo.ty);
            ReproduceSonido(Clips::PiezaFuera);
            DejaPiezaEnImagen();
            anillo.Avanza();
        }
        PermiteEventos();
        if (ModoOrdenar == 0) {
            break;
        }
    }
    PiezaLevantada = FALSO;
    ModoOrdenar = FALSO;
    SueltaBoton(7);
}

// The top piece first, then the pile from the bottom upwards: every piece
// passes position 1 once, and after the whole round the pile stands in its
// old order again. No attraction: each move ends exactly on the place.
void ResuelvePuzzle() {
    teselari.Pic_Trabajo.MousePointer = PUNTERO_ESPERA;
    CursorTrabajo = 9;
    const int32_t vueltas = NroPiezas;
    for (int32_t vuelta = 0; vuelta < vueltas; ++vuelta) {
        const Pieza q = Piezas[OrdenPiezas[1]];
        if (q.X != q.XCorrecta || q.Y != q.YCorrecta) {
            LlevaPiezaA(q.XCorrecta, q.YCorrecta);
            ReproduceSonido(Clips::PiezaEnSuSitio);
            DejaPiezaEnImagen();
            ActualizaBSInfo();
            PartidaValida = FALSO;
        }
        PermiteEventos();
        if (ModoResolver == 0) {
            break;
        }
        PiezaPrioritaria(NroPiezas);
    }
    PiezaLevantada = FALSO;
    PiezaSoltandose = FALSO;
    if (ModoResolver != 0) {
        RestauraBitmap(); // the round ran to its end
    }
    ModoResolver = FALSO;
    SueltaBoton(9);
}
