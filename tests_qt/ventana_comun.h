// Shared set-up of the tests of the modal windows: the first instant's
// state on the desktop's services, with the messages, sounds and help topics
// recorded, and a form loaded and shown in its window.
#pragma once

#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "plataforma_prueba.h"
#include "qt/Arranque.h"

namespace ventana_prueba {

inline std::vector<std::string> mensajes; // their titles
inline std::vector<int16_t> sonidos;
inline std::vector<int16_t> temas;

inline void PreparaEscritorio() {
    RestauraValoresIniciales();
    InstalaServicios();
    mensajes.clear();
    sonidos.clear();
    temas.clear();
    ServiciosPlataforma s;
    s.Mensaje = [](const std::string &titulo, const std::string &) {
        mensajes.push_back(titulo);
        return true;
    };
    s.Sonido = [](int16_t clip) { sonidos.push_back(clip); };
    PonEscritorio(s);
    PonServicio(&ServiciosPlataforma::MuestraAyuda, [](int16_t tema) { temas.push_back(tema); });
}

inline void RestauraEscritorio() {
    PonEscritorio({});
    PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
    RestauraValoresIniciales();
}

// A form loaded and shown in its window, as its command opens it; closed
// with the test.
template <typename Form, typename Ventana> class VentanaAbierta : public testing::Test {
  protected:
    void Abre() {
        ventana.reset();
        form = std::make_unique<Form>();
        form->Form_Load();
        ventana = std::make_unique<Ventana>(*form);
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    }
    void TearDown() override {
        ventana.reset();
        form.reset();
        RestauraEscritorio();
    }
    std::unique_ptr<Form> form;
    std::unique_ptr<Ventana> ventana;
};

} // namespace ventana_prueba
