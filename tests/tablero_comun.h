// Shared set-up of the board tests: a dealt board with every piece where the
// test wants it, and doubles of the desktop that record sounds and messages
// and can re-enter handlers while the game lets events through.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "board/Barajar.h"
#include "board/Render.h"
#include "core/Plataforma.h"
#include "cutting/Corte.h"
#include "motor_comun.h"
#include "plataforma_prueba.h"

// What the desktop was asked to do.
struct Escritorio {
    std::vector<int16_t> sonidos;
    struct Mensaje {
        std::string titulo, texto;
        int16_t lineas, botones;
    };
    std::vector<Mensaje> mensajes;
    int32_t eventos = 0;
    // Runs at each PermiteEventos, with the number of the call (from 1).
    std::function<void(int32_t)> alDejarPasarEventos;
    // Runs while a message stands.
    std::function<void()> alMostrarMensaje;
    bool respuesta = true; // the player's answer to a question
    int32_t terminas = 0;
};

inline Escritorio escritorio;

inline void InstalaEscritorio() {
    escritorio = Escritorio{};
    ServiciosPlataforma s;
    s.Sonido = [](int16_t clip) { escritorio.sonidos.push_back(clip); };
    s.Mensaje = [](const std::string &titulo, const std::string &texto) {
        escritorio.mensajes.push_back(
            {titulo, texto, PuzzGbl::MensajeLineas, PuzzGbl::MensajeBotones});
        if (escritorio.alMostrarMensaje) {
            escritorio.alMostrarMensaje();
        }
        return escritorio.respuesta;
    };
    s.Eventos = [] {
        ++escritorio.eventos;
        if (escritorio.alDejarPasarEventos) {
            escritorio.alDejarPasarEventos(escritorio.eventos);
        }
    };
    s.Termina = [] { ++escritorio.terminas; };
    PonEscritorio(s);
}

inline void QuitaEscritorio() {
    PonEscritorio(ServiciosPlataforma{});
    escritorio = Escritorio{};
}

// Paints the board from the positions and the pile as they stand, as a
// restored game is painted.
inline void RepintaTablero() {
    PuzzGbl::SesionRestaurando = VERDADERO;
    Barajar();
    PuzzGbl::SesionRestaurando = FALSO;
}

// A cut puzzle with every piece at home and the pile in order (piece i at
// position i), painted, sounds on and recorded.
inline void PreparaTablero(int16_t lado, int16_t tipo, int32_t ancho, int32_t alto,
                           int16_t anchoPantalla = 1024, int16_t altoPantalla = 768) {
    PreparaJuego(lado, tipo, ancho, alto, anchoPantalla, altoPantalla);
    PuzzGbl::SesionRestaurando = VERDADERO;
    PreparaBitmap();
    ColocaPiezasEnCasa();
    RepintaTablero();
    PuzzGbl::Sonido = 1;
    InstalaEscritorio();
}

// Moves piece k to (x, y) without painting.
inline void PonPieza(int16_t k, int32_t x, int32_t y) {
    PuzzGbl::Piezas[k].X = x;
    PuzzGbl::Piezas[k].Y = y;
}

// Moves every piece by (dx, dy) from its home, without painting.
inline void DesplazaTodas(int32_t dx, int32_t dy) {
    for (int16_t k = 1; k <= PuzzGbl::NroPiezas; ++k) {
        PonPieza(k, PuzzGbl::Piezas[k].XCorrecta + dx, PuzzGbl::Piezas[k].YCorrecta + dy);
    }
}

// The pile, top first.
inline std::vector<int16_t> Pila() {
    return std::vector<int16_t>(PuzzGbl::OrdenPiezas.begin() + 1, PuzzGbl::OrdenPiezas.end());
}

// Whether the screen shows the composite and the composite is the pile
// painted afresh from the positions.
inline bool TableroAlDia() {
    using namespace PuzzGbl;
    const Superficie antes = teselari.Pic_Imagen;
    const bool pantalla = MismosPixeles(teselari.Pic_Trabajo, antes);
    RepintaTablero();
    return pantalla && MismosPixeles(antes, teselari.Pic_Imagen);
}

// Whether the puzzle's area of the board shows the surface given.
inline bool AreaComo(const Superficie &s) {
    using namespace PuzzGbl;
    for (int32_t y = 0; y < AltoPuzzle; ++y) {
        for (int32_t x = 0; x < AnchoPuzzle; ++x) {
            if (teselari.Pic_Trabajo.Point(x, y) != s.Point(x, y)) {
                return false;
            }
        }
    }
    return true;
}

// A pixel of the home cell of piece k, from the cell's corner, with the
// colour given on the mask of the cuts.
inline std::optional<std::pair<int32_t, int32_t>> PuntoDeCelda(int16_t k, Color c) {
    using namespace PuzzGbl;
    const Pieza &q = Piezas[k];
    for (int32_t y = 0; y < AltoPieza; ++y) {
        for (int32_t x = 0; x < AnchoPieza; ++x) {
            if (teselari.Pic_Mascara.Point(q.XCorrecta + x, q.YCorrecta + y) == c) {
                return std::make_pair(x, y);
            }
        }
    }
    return std::nullopt;
}

// The board as it should look with the piece in the hand: the composite with
// the piece at position 1 drawn on it.
inline Superficie ImagenConLaPiezaEnLaMano() {
    using namespace PuzzGbl;
    Superficie esperado = teselari.Pic_Imagen;
    if (TipoPieza != 0) {
        EnmascaraPieza(1);
    }
    MuestraPieza(esperado, 1);
    return esperado;
}

// The board's fixture; the first instant's state puts the desktop's doubles
// away with the rest.
class Tablero : public Motor {};
