// Shared set-up of the tests of the modal windows: the first instant's
// state on the desktop's services, with the messages, sounds and help topics
// recorded (the board tests' double), and a form loaded and shown in its
// window.
#pragma once

#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "qt/Arranque.h"
#include "tablero_comun.h"

namespace ventana_prueba {

inline std::vector<int16_t> temas;

// The real services and event loop; messages, sounds and help recorded.
inline void PreparaEscritorio() {
    RestauraValoresIniciales();
    InstalaServicios();
    const auto eventos = Plataforma().Eventos;
    InstalaEscritorio();
    PonServicio(&ServiciosPlataforma::Eventos, eventos);
    temas.clear();
    PonServicio(&ServiciosPlataforma::MuestraAyuda, [](int16_t tema) { temas.push_back(tema); });
}

inline void RestauraEscritorio() {
    QuitaEscritorio();
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
