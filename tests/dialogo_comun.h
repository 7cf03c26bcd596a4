// Shared set-up of the customisation dialog's tests: a folder of real BMP
// files written by the game's own writer, a loader that reads them back, a
// text service that records what is printed, and the dialog's hooks.
#pragma once

#include <filesystem>

#include <cstring>
#include <functional>
#include <memory>

#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/GuardaBmp.h"
#include "dialog/ServiciosDialogo.h"
#include "plataforma_prueba.h"
#include "services/Ayuda.h"
#include "services/Sonidos.h"
#include "sesion_comun.h"

namespace dialogo_prueba {

// Reads back the uncompressed 24-bit files GuardaBmp writes; anything else,
// and a file shorter than its header says, is blank as the platform's
// loader leaves it; a missing file is missing.
inline CargaDeImagen LeeBmp(const std::string &fichero, Superficie &destino) {
    if (!std::filesystem::is_regular_file(fichero)) {
        DejaImagenEnBlanco(destino);
        return {EstadoCarga::Inexistente, 320, 240};
    }
    const CargaDeImagen blanca{EstadoCarga::EnBlanco, 320, 240};
    const std::string d = sesion_prueba::LeeFichero(fichero);
    auto le32 = [&d](size_t i) {
        uint32_t v = 0;
        std::memcpy(&v, d.data() + i, 4);
        return v;
    };
    if (d.size() < 54 || d[0] != 'B' || d[1] != 'M' || d[28] != 24) {
        DejaImagenEnBlanco(destino);
        return blanca;
    }
    const int32_t w = static_cast<int32_t>(le32(18)), h = static_cast<int32_t>(le32(22));
    const size_t fila = (static_cast<size_t>(w) * 3 + 3) & ~size_t{3};
    if (w <= 0 || h <= 0 || d.size() < le32(10) + fila * h) {
        DejaImagenEnBlanco(destino);
        return blanca;
    }
    destino.CambiaTamano(w, h);
    for (int32_t y = 0; y < h; ++y) {
        const auto *p = reinterpret_cast<const uint8_t *>(d.data() + le32(10) + fila * (h - 1 - y));
        for (int32_t x = 0; x < w; ++x, p += 3) {
            destino.Fila(y)[x] =
                0xFF000000u | (uint32_t{p[2]} << 16) | (uint32_t{p[1]} << 8) | p[0];
        }
    }
    return {EstadoCarga::Leida, w, h};
}

// Every text printed, with the surface it went to.
struct RotuladorDialogo : Rotulador {
    std::vector<std::pair<const Superficie *, std::string>> textos;
    double Ancho(const Fuente &, const std::string &t) override {
        return 6.0 * static_cast<double>(t.size());
    }
    double Alto(const Fuente &, const std::string &) override { return 13.0; }
    void Dibuja(Superficie &s, const Fuente &, double, double, Color,
                const std::string &t) override {
        textos.emplace_back(&s, t);
    }
    std::string Ultimo(const Superficie &s) const {
        for (auto it = textos.rbegin(); it != textos.rend(); ++it) {
            if (it->first == &s) {
                return it->second;
            }
        }
        return {};
    }
};

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
inline void AyudaDePrueba(int16_t tema) {
    temasAyuda.push_back(tema);
}

} // namespace dialogo_prueba

// A game of a 640 x 480 picture "a.bmp" in the folder "fotos", at zoom
// 100, 8 x 8 pieces with knobs; full speed, so that no wait is felt.
class Dialogo : public Sesion {
  protected:
    void SetUp() override {
        using namespace dialogo_prueba;
        Sesion::SetUp();
        PonServicio(&ServiciosPlataforma::CargaImagen, LeeBmp);
        PonServicio(&ServiciosPlataforma::Texto, &rotulador);
        PonServicio(&ServiciosPlataforma::Dialogo, {MuestraModalDePrueba, CargaTiraDePrueba});
        PonServicio(&ServiciosPlataforma::MuestraAyuda, AyudaDePrueba);
        alMostrar = nullptr;
        temasAyuda.clear();
        fotos = raiz + "/fotos";
        std::filesystem::create_directories(fotos);
        EscribeBmp("a.bmp", 640, 480);
        using namespace PuzzGbl;
        Velocidad = 100;
        Sonido = 1;
        FicheroImagen = fotos + "/a.bmp";
        NombreImagen = "a.bmp";
        CarpetaImagen = fotos;
        UnidadImagen = UnidadDeCarpeta(fotos);
        Zoom = 100;
        PiezasPorLado = 8;
        TipoPieza = 1;
        PiezasDobles = 0;
        ImagenValida = VERDADERO;
        CargaImagen(FicheroImagen, teselari.Pic_Origin);
        CalculaPiezas();
    }
    void TearDown() override {
        PonServicio(&ServiciosPlataforma::Dialogo, {});
        PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
        PonServicio(&ServiciosPlataforma::Texto, nullptr);
        dialogo_prueba::alMostrar = nullptr;
        Sesion::TearDown();
    }

    // A picture of w x h, of generated colours, in the folder "fotos".
    void EscribeBmp(const std::string &nombre, int32_t w, int32_t h) {
        Superficie s;
        PintaImagenGenerada(s, w, h);
        ASSERT_TRUE(GuardaBmp(s, fotos + "/" + nombre));
    }

    // The dialog as it opens.
    FormAbrirFic &Abre() {
        sesion_prueba::mensajes.clear();
        sesion_prueba::sonidos.clear();
        f = std::make_unique<FormAbrirFic>();
        f->Form_Load();
        return *f;
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

    dialogo_prueba::RotuladorDialogo rotulador;
    std::unique_ptr<FormAbrirFic> f;
    std::string fotos;
};
