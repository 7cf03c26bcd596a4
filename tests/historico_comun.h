// Shared set-up of the history tests: a working folder of its own with the
// history file in it, a fixed clock, the desktop's doubles, and records
// told apart by their number.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/EscrituraSegura.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"
#include "tablero_comun.h"

inline FechaHora RelojFijo() {
    return {"23/11/2026", "18:05:09"};
}

// Record i: its number in Fecha ("R7") and in Segundos, so that any place
// of it shows which record it is.
inline RegistroHistorico RegistroNumerado(int i, const std::string &nombre = "Ana",
                                          const std::string &imagen = "CASA.JPG",
                                          float dificultad = 42.53f, int32_t segundos = -1) {
    RegistroHistorico r;
    r.Fecha = CadenaFija("R" + std::to_string(i), 10);
    r.Hora = CadenaFija("12:00:00", 8);
    r.Imagen = CadenaFija(imagen, 12);
    r.AnchoPuzzle = 640;
    r.AltoPuzzle = 480;
    r.PiezasPorLado = 8;
    r.TipoPieza = 1;
    r.NroPiezas = 64;
    r.AnchoPieza = 80;
    r.AltoPieza = 60;
    r.Dificultad = dificultad;
    r.Segundos = segundos >= 0 ? segundos : i;
    r.FactorPegado = 50;
    r.Nombre = CadenaFija(nombre, 9);
    return r;
}

class Historia : public ::testing::Test {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        char plantilla[] = "/tmp/teselari-historia-XXXXXX";
        ASSERT_NE(mkdtemp(plantilla), nullptr);
        carpeta = plantilla;
        PuzzGbl::DirectorioTrabajo = carpeta;
        InstalaEscritorio();
        PonRelojHistorico(RelojFijo);
    }
    void TearDown() override {
        SimulaFalloEscritura(-1);
        PonRelojHistorico(nullptr);
        QuitaEscritorio();
        if (::chdir("/") != 0) {
            // the folder goes anyway
        }
        std::error_code ec;
        std::filesystem::remove_all(carpeta, ec);
        RestauraValoresIniciales();
    }

    std::string Ruta() const { return carpeta + "/TESEL32.HIS"; }
    void EscribeHis(const std::string &contenido) const {
        std::ofstream(Ruta(), std::ios::binary) << contenido;
    }
    std::string LeeHis() const {
        std::ifstream f(Ruta(), std::ios::binary);
        std::stringstream s;
        s << f.rdbuf();
        return s.str();
    }
    // The texts of the messages shown so far.
    std::vector<std::string> Mensajes() const {
        std::vector<std::string> t;
        for (const Escritorio::Mensaje &m : escritorio.mensajes) {
            t.push_back(m.texto);
        }
        return t;
    }

    std::string carpeta;
};
