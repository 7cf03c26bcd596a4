// A history of many puzzles for the benchmarks of the history book: names,
// pictures, difficulties and times spread as a long-played game would
// leave them, from a fixed-seed generator, the same on every run.
#pragma once

#include <cstdint>
#include <string>

#include "core/PuzzGbl.h"
#include "history/CamposHistorico.h"

// Record i of the history: 40 players (each name also in capitals), 300
// pictures, difficulties of three decimals, times up to three hours.
inline RegistroHistorico RegistroDeBanco(uint32_t i) {
    static const char *const nombres[] = {"Ana",   "Luis",  "Marta", "Pedro",
                                          "Lucía", "Jorge", "Nuria", "Íñigo"};
    uint32_t h = i * 2654435761u;
    auto siguiente = [&h] {
        h ^= h << 13;
        h ^= h >> 17;
        h ^= h << 5;
        return h;
    };
    RegistroHistorico r;
    r.Fecha = CadenaFija(std::to_string(1 + siguiente() % 28) + "/0" +
                             std::to_string(1 + siguiente() % 9) + "/2025",
                         10);
    r.Hora = CadenaFija(std::to_string(10 + siguiente() % 12) + ":30:00", 8);
    r.Imagen = CadenaFija("FOTO" + std::to_string(siguiente() % 300) + ".JPG", 12);
    r.PiezasPorLado = static_cast<int16_t>(3 + siguiente() % 18);
    r.TipoPieza = static_cast<int16_t>(siguiente() % 6);
    r.NroPiezas = static_cast<int16_t>(r.PiezasPorLado * r.PiezasPorLado);
    r.AnchoPieza = static_cast<int16_t>(1024 / r.PiezasPorLado);
    r.AltoPieza = static_cast<int16_t>(768 / r.PiezasPorLado);
    r.AnchoPuzzle = static_cast<int16_t>(r.AnchoPieza * r.PiezasPorLado);
    r.AltoPuzzle = static_cast<int16_t>(r.AltoPieza * r.PiezasPorLado);
    r.Dificultad = static_cast<float>(siguiente() % 99800 + 100) / 1000.0f;
    r.Segundos = static_cast<int32_t>(siguiente() % 10800);
    r.FactorPegado = static_cast<int16_t>(5 * (siguiente() % 21));
    std::string nombre = nombres[siguiente() % 8];
    nombre += std::to_string(siguiente() % 5);
    r.Nombre = CadenaFija(nombre, 9);
    return r;
}

// The table Historico with records 1..n.
inline void LlenaHistoricoDeBanco(int32_t n) {
    using namespace PuzzGbl;
    Historico.assign(static_cast<size_t>(n) + 21, RegistroHistorico{});
    for (int32_t i = 1; i <= n; ++i) {
        Historico[static_cast<size_t>(i)] = RegistroDeBanco(static_cast<uint32_t>(i));
    }
    NroRegistrosHistorico = static_cast<int16_t>(n);
}
