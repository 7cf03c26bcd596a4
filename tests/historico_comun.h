// Shared set-up of the history tests: a working folder of its own with the
// history file in it, a fixed clock, the desktop's doubles, and records
// told apart by their number.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "core/EscrituraSegura.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"
#include "plataforma_prueba.h"
#include "tablero_comun.h"

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

// Text as a fixed-pitch face would measure it, 0.8 of the size in points a
// character; what is written is kept.
class RotuladorPrueba : public Rotulador {
  public:
    struct Escrito {
        double x, y;
        std::string texto;
        double tamano;
    };
    std::vector<Escrito> escritos;

    static double Caracteres(const std::string &t) {
        return static_cast<double>(
            std::count_if(t.begin(), t.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    }
    double Ancho(const Fuente &f, const std::string &t) override {
        return Caracteres(t) * f.Tamano * 0.8;
    }
    double Alto(const Fuente &, const std::string &) override { return 13; }
    void Dibuja(Superficie &, const Fuente &f, double x, double y, Color,
                const std::string &t) override {
        escritos.push_back({x, y, t, f.Tamano});
    }
    // What was written at (x, y) last, or "-".
    std::string En(double x, double y) const {
        for (auto e = escritos.rbegin(); e != escritos.rend(); ++e) {
            if (e->x == x && e->y == y) {
                return e->texto;
            }
        }
        return "-";
    }
};

class Historia : public ::testing::Test {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        char plantilla[] = "/tmp/teselari-historia-XXXXXX";
        ASSERT_NE(mkdtemp(plantilla), nullptr);
        carpeta = plantilla;
        PuzzGbl::DirectorioTrabajo = carpeta;
        InstalaEscritorio();
        PonServicio(
            &ServiciosPlataforma::Calendario, +[] {
                return FechaHora{"23/11/2026", "18:05:09"};
            });
    }
    void TearDown() override {
        SimulaFalloEscritura(-1);
        PonServicio(&ServiciosPlataforma::Calendario, nullptr);
        QuitaEscritorio();
        if (::chdir("/") != 0) {
            // the folder goes anyway
        }
        std::error_code ec;
        std::filesystem::remove_all(carpeta, ec);
        RestauraValoresIniciales();
    }

    std::string Ruta() const { return carpeta + "/TESEL32.HIS"; }
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
