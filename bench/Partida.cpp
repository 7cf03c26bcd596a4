#include "Partida.h"

#include "board/Barajar.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "session/Enlaces.h"

namespace {

constexpr int16_t ANCHO_PANTALLA = 1920;
constexpr int16_t ALTO_PANTALLA = 1080;

// A linear congruential generator with a fixed seed (Numerical Recipes).
struct Congruencial {
    uint32_t estado = 20240611u;
    uint32_t Siguiente() {
        estado = estado * 1664525u + 1013904223u;
        return estado;
    }
};

uint32_t Satura(int32_t v) {
    return static_cast<uint32_t>(v < 0 ? 0 : (v > 255 ? 255 : v));
}

} // namespace

void ImagenGenerada(Superficie &s) {
    s.CambiaTamano(ANCHO_IMAGEN, ALTO_IMAGEN);
    Congruencial azar;
    const int32_t cx = ANCHO_IMAGEN / 2, cy = ALTO_IMAGEN / 2;
    for (int32_t y = 0; y < ALTO_IMAGEN; ++y) {
        uint32_t *fila = s.Fila(y);
        for (int32_t x = 0; x < ANCHO_IMAGEN; ++x) {
            const int32_t dx = x - cx, dy = y - cy;
            const int32_t anillo = ((dx * dx + dy * dy) >> 9) & 0x3F;
            const bool casilla = (((x >> 6) + (y >> 6)) & 1) != 0;
            const int32_t ruido = static_cast<int32_t>(azar.Siguiente() >> 27) - 16;
            const uint32_t r = Satura(x * 255 / (ANCHO_IMAGEN - 1) + ruido);
            const uint32_t g = Satura(y * 255 / (ALTO_IMAGEN - 1) - anillo + ruido);
            const uint32_t b = Satura((casilla ? 200 : 40) + anillo - ruido);
            fila[x] = ALFA_OPACO | (r << 16) | (g << 8) | b;
        }
    }
}

void PreparaPartida(int16_t n, int16_t tipo, Reparto reparto) {
    using namespace PuzzGbl;
    RestauraValoresIniciales();
    EnlazaArriba();
    AnchoPantalla = ANCHO_PANTALLA;
    AltoPantalla = ALTO_PANTALLA;
    PiezasPorLado = n;
    TipoPieza = tipo;
    PiezasDobles = tipo >= 2 ? 1 : 0;
    ColorFondo = 3;
    Velocidad = 100;
    VueltasPorSegundo = 0;
    teselari.Pic_BotonesSiempre.Move(ANCHO_PANTALLA - 16 - 62, 0, 62, 667);
    ImagenGenerada(teselari.Pic_Origin);
    SesionRestaurando = reparto == Reparto::Barajado ? FALSO : VERDADERO;
    PreparaBitmap();
    if (reparto != Reparto::Barajado) {
        ColocaPiezasEnCasa();
    }
    if (reparto == Reparto::EnCasa) {
        Barajar();
    }
}

void ApilaPiezas() {
    using namespace PuzzGbl;
    const int32_t x = (teselari.Pic_Trabajo.Ancho() - AnchoPieza) / 2;
    const int32_t y = (teselari.Pic_Trabajo.Alto() - AltoPieza) / 2;
    for (size_t i = 1; i < Piezas.size(); ++i) {
        Piezas[i].X = x;
        Piezas[i].Y = y;
    }
    const int16_t antes = SesionRestaurando;
    SesionRestaurando = VERDADERO;
    Barajar();
    SesionRestaurando = antes;
}

int16_t PosicionDePieza(int16_t k) {
    const auto &orden = PuzzGbl::OrdenPiezas;
    for (size_t i = 1; i < orden.size(); ++i) {
        if (orden[i] == k) {
            return static_cast<int16_t>(i);
        }
    }
    return 0;
}

int16_t PiezaDeCelda(int16_t n, int16_t fila, int16_t col) {
    return static_cast<int16_t>(n * n - (n * fila + col));
}
