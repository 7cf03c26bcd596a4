// The chronometer panel: the time on its face, the tick, the keys and the
// pointer. Its drag is in paneles_arrastre_test.cpp.
#include "core/Cronometro.h"
#include "core/Plataforma.h"
#include "paneles_comun.h"
#include "panels/PanelCronometro.h"
#include "panels/TiempoCronometro.h"
#include "plataforma_prueba.h"
#include "services/Sonidos.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// Below a day: H:mm:ss. From a day on the value reads as a date after
// 30/12/1899, with the time when there is one; 1900 was not a leap year.
TEST(Cronometro, ElTiempoSeEscribeComoLaMascaraGeneral) {
    const std::pair<int32_t, const char *> casos[] = {{0, "0:00:00"},
                                                      {36000 + 61, "10:01:01"},
                                                      {86399, "23:59:59"},
                                                      {86400, "31/12/1899"},
                                                      {86401, "31/12/1899 0:00:01"},
                                                      {2 * 86400 + 3661, "01/01/1900 1:01:01"},
                                                      {61 * 86400, "01/03/1900"},
                                                      {367 * 86400 + 86399, "01/01/1901 23:59:59"}};
    for (const auto &[segundos, texto] : casos) {
        EXPECT_EQ(TiempoCronometro(segundos), texto) << segundos;
    }
}

class PanelCronometro : public Motor {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        PreparaPantallaPaneles();
        PonServicio(&ServiciosPlataforma::Texto, &rotulador);
        InstalaEscritorio();
        Sonido = 1;
        teselari.Pic_Cronome.Move(500, 100);
        teselari.Pic_Cronome.Visible = true;
    }
    RotuladorRegistro rotulador;
};

// The tick counts only while the clock runs, hidden or not. It writes the
// time in red bold at (8, 21) on its field, 53 x 15 from (4, 19), cleared
// to the face's grey; the rest of the face is not touched.
TEST_F(PanelCronometro, ElTicCuentaEnMarchaYEscribeEnElCampo) {
    CuadroImagen &panel = teselari.Pic_Cronome;
    SegundosCronometro = 3599;
    ParaCronometro();
    Timer1_Timer();
    EXPECT_EQ(SegundosCronometro, 3599);
    EXPECT_TRUE(rotulador.textos.empty());
    ArrancaCronometro();
    panel.CajaLlena(0, 0, 61, 38, COLOR_NEGRO);
    Timer1_Timer();
    EXPECT_EQ(referencia::CajaDe(panel, GRIS_PANEL), (Rectangulo{4, 19, 57, 34}));
    EXPECT_EQ(referencia::Cuenta(panel, GRIS_PANEL), 53 * 15);
    Cronometro = 2;
    panel.Visible = false;
    Timer1_Timer();
    EXPECT_EQ(SegundosCronometro, 3601);
    ASSERT_EQ(rotulador.textos.size(), 2u);
    const auto &t = rotulador.textos[0];
    EXPECT_EQ(t.texto, "1:00:00");
    EXPECT_DOUBLE_EQ(t.x, 8);
    EXPECT_DOUBLE_EQ(t.y, 21);
    EXPECT_EQ(t.color, 0xFF0000u);
    EXPECT_TRUE(t.negrita);
    EXPECT_EQ(rotulador.textos[1].texto, "1:00:01");
}

struct CasoTecla {
    const char *nombre;
    float x, y;
    bool en_marcha;      // before the press
    int16_t cursor;      // CursorPanelNuevo after the move
    bool en_marcha_tras; // after the press
    bool suena;
    bool arrastra;
};

const CasoTecla casos_tecla[] = {
    {"VerdeParado", 5, 5, false, 2, true, true, false},
    {"VerdeEnMarcha", 29, 13, true, 0, true, false, false},
    {"RojaEnMarcha", 32, 5, true, 2, false, true, false},
    {"RojaParado", 56, 13, false, 0, false, false, false},
    // The bounds belong to the handle.
    {"BordeIzquierdo", 4, 8, true, 1, true, false, true},
    {"EntreTeclas", 30, 8, true, 1, true, false, true},
    {"EntreTeclas31", 31, 8, false, 1, false, false, true},
    {"BordeDerecho", 57, 8, true, 1, true, false, true},
    {"Arriba", 10, 4, true, 1, true, false, true},
    {"Abajo", 10, 14, false, 1, false, false, true},
};

class TeclaCronometro : public PanelCronometro, public ::testing::WithParamInterface<CasoTecla> {};

TEST_P(TeclaCronometro, ActuaSoloDondeCambiaElEstado) {
    const CasoTecla &c = GetParam();
    c.en_marcha ? ArrancaCronometro() : ParaCronometro();
    Pic_Cronome_MouseMove(0, 0, c.x, c.y);
    EXPECT_EQ(CursorPanelNuevo, c.cursor);
    EXPECT_EQ(CursorPanel, c.cursor);
    CuadroImagen &panel = teselari.Pic_Cronome;
    EXPECT_EQ(panel.MousePointer, c.cursor == 0 ? PUNTERO_NORMAL : PUNTERO_PROPIO);
    if (c.cursor != 0) {
        EXPECT_EQ(panel.MouseIcon, c.cursor == 1 ? "MANOBLANCA" : "MANOINDICE");
    }
    // Someone else changes the pointer: the same zone doesn't set it again.
    panel.MousePointer = 12;
    Pic_Cronome_MouseMove(0, 0, c.x, c.y);
    EXPECT_EQ(panel.MousePointer, 12);
    Pic_Cronome_MouseDown(1, 0, c.x, c.y);
    EXPECT_EQ(RelojEnMarcha != FALSO, c.en_marcha_tras);
    EXPECT_EQ(escritorio.sonidos, c.suena ? std::vector<int16_t>{11} : std::vector<int16_t>{});
    EXPECT_EQ(ArrastrandoPanel != FALSO, c.arrastra);
    if (c.arrastra) {
        EXPECT_EQ(panel.MousePointer, PUNTERO_CUATRO_FLECHAS);
        EXPECT_EQ(teselari.Pic_Trabajo.DrawMode, DRAWMODE_INVIERTE);
    } else {
        // The keys are drawn for the state now in force.
        EXPECT_EQ(panel.Point(4, 4), c.en_marcha_tras ? COLOR_NEGRO : COLOR_BLANCO);
    }
}

INSTANTIATE_TEST_SUITE_P(Teclas, TeclaCronometro, ::testing::ValuesIn(casos_tecla),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

} // namespace
