// Shared set-up of the engine tests: a clean state, a generated picture and
// a screen of a chosen size.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/PuzzGbl.h"
#include "plataforma_prueba.h"
#include "raster/Superficie.h"

// A deterministic colourful picture: gradients and a fine pattern, so that
// any misplaced pixel changes what is read back.
inline void PintaImagenGenerada(Superficie &s, int32_t ancho, int32_t alto) {
    s.CambiaTamano(ancho, alto);
    for (int32_t y = 0; y < alto; ++y) {
        uint32_t *fila = s.Fila(y);
        for (int32_t x = 0; x < ancho; ++x) {
            uint32_t r = static_cast<uint32_t>(x * 255 / std::max(1, ancho - 1));
            uint32_t g = static_cast<uint32_t>(y * 255 / std::max(1, alto - 1));
            uint32_t b = static_cast<uint32_t>(((x / 7) ^ (y / 5)) * 37 & 0xFF);
            fila[x] = 0xFF000000u | (r << 16) | (g << 8) | b;
        }
    }
}

// Settings for one game on a screen of the given size, no delays.
inline void PreparaJuego(int16_t lado, int16_t tipo, int32_t ancho, int32_t alto,
                         int16_t anchoPantalla = 1024, int16_t altoPantalla = 768) {
    using namespace PuzzGbl;
    RestauraSobreLaPlataforma();
    AnchoPantalla = anchoPantalla;
    AltoPantalla = altoPantalla;
    PiezasPorLado = lado;
    TipoPieza = tipo;
    PiezasDobles = tipo >= 2 ? 1 : 0;
    Velocidad = 100;
    VueltasPorSegundo = 0;
    teselari.Pic_BotonesSiempre.Move(anchoPantalla - 16 - 62, 0, 62, 667);
    PintaImagenGenerada(teselari.Pic_Origin, ancho, alto);
}

// A whole file, written and read byte for byte.
inline void EscribeFichero(const std::string &ruta, const std::string &contenido) {
    std::ofstream(ruta, std::ios::binary | std::ios::trunc) << contenido;
}

inline std::string LeeFichero(const std::string &ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(f), {});
}

// The position in OrdenPiezas of piece k.
inline int16_t PosicionDe(int16_t k) {
    for (size_t i = 1; i < PuzzGbl::OrdenPiezas.size(); ++i) {
        if (PuzzGbl::OrdenPiezas[i] == k) {
            return static_cast<int16_t>(i);
        }
    }
    return 0;
}

// FNV-1a of the colour bits of a surface, with its size.
inline uint64_t Huella(const Superficie &s) {
    uint64_t h = 1469598103934665603ull;
    auto mezcla = [&h](uint32_t v) {
        for (int i = 0; i < 4; ++i) {
            h ^= (v >> (8 * i)) & 0xFF;
            h *= 1099511628211ull;
        }
    };
    mezcla(static_cast<uint32_t>(s.Ancho()));
    mezcla(static_cast<uint32_t>(s.Alto()));
    for (uint32_t p : s.Pixeles()) {
        mezcla(p & 0xFFFFFF);
    }
    return h;
}

// Whether two surfaces hold the same size and the same colours.
inline bool MismosPixeles(const Superficie &a, const Superficie &b) {
    if (a.Ancho() != b.Ancho() || a.Alto() != b.Alto()) {
        return false;
    }
    for (size_t i = 0; i < a.Pixeles().size(); ++i) {
        if ((a.Pixeles()[i] & 0xFFFFFF) != (b.Pixeles()[i] & 0xFFFFFF)) {
            return false;
        }
    }
    return true;
}

// A fixture that leaves the state clean after each test, the platform's
// doubles put away with the rest.
class Motor : public ::testing::Test {
  protected:
    void TearDown() override { RestauraValoresIniciales(); }
};
