// Shared set-up of the saved-game tests: a temporary program folder and data
// folder, a picture loader of our own, and a message double.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/TextoIni.h"
#include "cutting/Corte.h"
#include "motor_comun.h"
#include "plataforma_prueba.h"
#include "session/Sesion.h"

namespace sesion_prueba {

using ::EscribeFichero;
using ::LeeFichero;

struct MensajeVisto {
    std::string titulo, texto;
    int16_t lineas;
};
inline std::vector<MensajeVisto> mensajes;
inline std::vector<int16_t> sonidos;

inline bool MensajeDePrueba(const std::string &titulo, const std::string &texto) {
    mensajes.push_back({titulo, texto, PuzzGbl::MensajeLineas});
    return true;
}
inline void SonidoDePrueba(int16_t clip) {
    sonidos.push_back(clip);
}

// The pictures of these tests are small text files "IMAGEN W H": the loader
// paints the generated picture of that size. "ENORME W H" states a size too
// large to decode. A missing file is Inexistente; anything else can't be
// decoded.
inline CargaDeImagen CargadorDePrueba(const std::string &fichero, Superficie &destino) {
    std::ifstream f(fichero);
    std::string marca;
    int32_t w = 0, h = 0;
    const bool abierto = f.is_open();
    if (!(f >> marca >> w >> h) || (marca != "IMAGEN" && marca != "ENORME") || w <= 0 || h <= 0) {
        DejaImagenEnBlanco(destino);
        return {abierto ? EstadoCarga::EnBlanco : EstadoCarga::Inexistente, 320, 240};
    }
    if (marca == "ENORME") {
        DejaImagenEnBlanco(destino);
        return {EstadoCarga::Desmesurada, w, h};
    }
    PintaImagenGenerada(destino, w, h);
    return {EstadoCarga::Leida, w, h};
}

inline void EscribeImagen(const std::string &ruta, int32_t w, int32_t h) {
    EscribeFichero(ruta, "IMAGEN " + std::to_string(w) + " " + std::to_string(h) + "\n");
}

// Every setting and flag within what a game can hold, the grid's count
// derived from it, and the pile a permutation.
inline ::testing::AssertionResult PartidaCoherente() {
    using namespace PuzzGbl;
    auto en = [](int v, int a, int b) { return v >= a && v <= b; };
    if (!en(PiezasPorLado, 3, 20) || !en(TipoPieza, 0, 5) || !en(FactorPegado, 0, 100) ||
        !en(ColorFondo, 0, 5) || !en(Velocidad, 0, 100) || !en(Zoom, 5, 995) || !en(Sonido, 1, 2) ||
        !en(Cronometro, 1, 2) || !en(Pistas, 1, 2) || !en(PuzzleCompleto, -1, 0) ||
        !en(PartidaValida, -1, 0) || SegundosCronometro < 0) {
        return ::testing::AssertionFailure() << "a setting out of range";
    }
    if (PiezasDobles != (TipoPieza >= 2 ? 1 : 0) ||
        NroPiezas != PiezasPorLado * PiezasPorLado * (1 + PiezasDobles)) {
        return ::testing::AssertionFailure() << "grid and count disagree";
    }
    if (CadenaFija(NombreJugador, 9) != NombreJugador) {
        return ::testing::AssertionFailure() << "the name is not 9 characters";
    }
    const std::set<int16_t> orden(OrdenPiezas.begin() + (OrdenPiezas.empty() ? 0 : 1),
                                  OrdenPiezas.end());
    if (OrdenPiezas.size() != static_cast<size_t>(NroPiezas) + 1 ||
        Piezas.size() != OrdenPiezas.size() || orden.size() != static_cast<size_t>(NroPiezas) ||
        *orden.begin() != 1 || *orden.rbegin() != NroPiezas) {
        return ::testing::AssertionFailure() << "OrdenPiezas is not a permutation";
    }
    return ::testing::AssertionSuccess();
}

// Restores an environment variable on leaving.
class VariableGuardada {
  public:
    explicit VariableGuardada(const char *nombre) : nombre_(nombre) {
        if (const char *v = std::getenv(nombre)) {
            valor_ = v;
        }
    }
    ~VariableGuardada() {
        if (valor_) {
            setenv(nombre_, valor_->c_str(), 1);
        } else {
            unsetenv(nombre_);
        }
    }

  private:
    const char *nombre_;
    std::optional<std::string> valor_;
};

} // namespace sesion_prueba

// A clean game state, the program's folder and the data folder under a new
// temporary folder, our loader and message double; all undone afterwards.
class Sesion : public Motor {
  protected:
    void SetUp() override {
        using namespace sesion_prueba;
        char plantilla[] = "/tmp/teselari-sesion-XXXXXX";
        ASSERT_NE(mkdtemp(plantilla), nullptr);
        raiz = plantilla;
        programa = raiz + "/programa";
        datos = raiz + "/datos";
        std::filesystem::create_directories(programa);
        antes = std::filesystem::current_path();
        setenv("XDG_DATA_HOME", datos.c_str(), 1);
        mensajes.clear();
        sonidos.clear();
        PonEscritorio({MensajeDePrueba, SonidoDePrueba});
        PonServicio(&ServiciosPlataforma::CargaImagen, CargadorDePrueba);
        PonServicio(&ServiciosPlataforma::DirectorioPrograma, programa);
        PreparaPantalla();
        PuzzGbl::DirectorioTrabajo = programa;
    }
    void TearDown() override {
        std::filesystem::current_path(antes);
        PonEscritorio({});
        PonServicio(&ServiciosPlataforma::CargaImagen, nullptr);
        PonServicio(&ServiciosPlataforma::DirectorioPrograma, "");
        std::filesystem::remove_all(raiz);
        Motor::TearDown();
    }

    // A fresh state on a 1024 x 768 screen, no delays, the panel in place.
    static void PreparaPantalla() {
        using namespace PuzzGbl;
        RestauraSobreLaPlataforma();
        AnchoPantalla = 1024;
        AltoPantalla = 768;
        VueltasPorSegundo = 0;
        teselari.Pic_BotonesSiempre.Move(1024 - 16 - 62, 0, 62, 667);
    }

    // A dealt game of foto.img, 480 x 360, in the program's folder.
    void JuegaPartida(int16_t lado, int16_t tipo);

    sesion_prueba::VariableGuardada xdg{"XDG_DATA_HOME"};
    sesion_prueba::VariableGuardada home{"HOME"};
    std::string raiz, programa, datos;
    std::filesystem::path antes;
};

inline void Sesion::JuegaPartida(int16_t lado, int16_t tipo) {
    using namespace PuzzGbl;
    const std::string ruta = programa + "/foto.img";
    sesion_prueba::EscribeImagen(ruta, 480, 360);
    PiezasPorLado = lado;
    TipoPieza = tipo;
    PiezasDobles = tipo >= 2 ? 1 : 0;
    FicheroImagen = ruta;
    NombreImagen = "foto.img";
    Zoom = 100;
    ImagenValida = VERDADERO;
    ASSERT_TRUE(CargaImagen(ruta, teselari.Pic_Origin).Leida());
    PreparaBitmap();
}
