// Shared set-up of the customisation dialog's tests: a folder of pictures
// of the session tests' kind, a loader that also takes the bitmap the
// dialog writes itself, a text service that records what is printed, and
// the dialog's hooks.
#pragma once

#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>

#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/ServiciosDialogo.h"
#include "plataforma_prueba.h"
#include "raster_referencia.h"
#include "services/Ayuda.h"
#include "services/Sonidos.h"
#include "sesion_comun.h"

namespace dialogo_prueba {

// The places of the arrows on a stepper panel.
constexpr float SUBE_X = 120, SUBE_Y = 30, BAJA_X = 120, BAJA_Y = 46;

// The session tests' loader, and the clipboard's picture that GuardaBmp
// wrote, at the size its header states, painted as the clipboard's double
// paints it.
inline CargaDeImagen CargaDePrueba(const std::string &fichero, Superficie &destino) {
    const std::string d = sesion_prueba::LeeFichero(fichero);
    if (d.size() < 54 || !d.starts_with("BM")) {
        return sesion_prueba::CargadorDePrueba(fichero, destino);
    }
    int32_t lados[2];
    std::memcpy(lados, d.data() + 18, sizeof lados);
    PintaImagenGenerada(destino, lados[0], lados[1]);
    return {EstadoCarga::Leida, lados[0], lados[1]};
}

inline std::function<void(FormAbrirFic &)> alMostrar;
inline std::vector<int16_t> temasAyuda;
inline void MuestraModalDePrueba(FormAbrirFic &f) {
    if (alMostrar) {
        alMostrar(f);
    }
}
// The strip: one colour that no panel has, so every arrow can be hit.
inline void CargaTiraDePrueba(Superficie &tira) {
    tira.CajaLlena(0, 0, tira.Ancho() - 1, tira.Alto() - 1, 0x204060);
}

} // namespace dialogo_prueba

// A game of a 640 x 480 picture "a.bmp" in the folder "fotos", with a first
// run's settings (zoom 100, 8 x 8 pieces with knobs) but full speed, so
// that no wait is felt.
class Dialogo : public Sesion {
  protected:
    void SetUp() override {
        using namespace dialogo_prueba;
        Sesion::SetUp();
        PonServicio(&ServiciosPlataforma::CargaImagen, CargaDePrueba);
        PonServicio(&ServiciosPlataforma::Texto, &rotulador);
        PonServicio(&ServiciosPlataforma::Dialogo, {MuestraModalDePrueba, CargaTiraDePrueba});
        PonServicio(&ServiciosPlataforma::MuestraAyuda, [](int16_t t) { temasAyuda.push_back(t); });
        alMostrar = nullptr;
        temasAyuda.clear();
        fotos = raiz + "/fotos";
        std::filesystem::create_directories(fotos);
        PonImagen("a.bmp", 640, 480);
        using namespace PuzzGbl;
        Velocidad = 100;
        FicheroImagen = fotos + "/a.bmp";
        NombreImagen = "a.bmp";
        CarpetaImagen = fotos;
        UnidadImagen = UnidadDeCarpeta(fotos);
        ImagenValida = VERDADERO;
        CargaImagen(FicheroImagen, teselari.Pic_Origin);
        CalculaPiezas();
    }
    void TearDown() override {
        PonServicio(&ServiciosPlataforma::Dialogo, {});
        PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
        PonServicio(&ServiciosPlataforma::Texto, nullptr);
        Sesion::TearDown();
    }

    // A picture of w x h in the folder "fotos".
    void PonImagen(const std::string &nombre, int32_t w, int32_t h) {
        sesion_prueba::EscribeImagen(fotos + "/" + nombre, w, h);
    }

    // The dialog as it opens.
    FormAbrirFic &Abre() {
        sesion_prueba::mensajes.clear();
        sesion_prueba::sonidos.clear();
        f = std::make_unique<FormAbrirFic>();
        f->Form_Load();
        return *f;
    }

    // The dialog opened on a new picture of w x h, picked by the player.
    void AbreConImagen(const std::string &nombre, int32_t w, int32_t h) {
        PonImagen(nombre, w, h);
        Abre();
        Elige(nombre);
    }

    // Picks the file of that name as the player would.
    void Elige(const std::string &nombre) {
        for (int32_t i = 0; i < f->File1.ListCount(); ++i) {
            if (f->File1.List(i) == nombre) {
                f->File1.PonListIndex(i);
                return;
            }
        }
        FAIL() << nombre << " is not listed";
    }

    RotuladorRegistro rotulador;
    std::unique_ptr<FormAbrirFic> f;
    std::string fotos;
};
