// The chronometer panel: the time on its face, the tick, the keys, the
// pointer and the drag.
#include "core/Cronometro.h"
#include "core/Plataforma.h"
#include "paneles_comun.h"
#include "panels/PanelCronometro.h"
#include "panels/TiempoCronometro.h"
#include "plataforma_prueba.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

struct CasoTiempo {
    int32_t segundos;
    const char *texto;
};

class Tiempo : public ::testing::TestWithParam<CasoTiempo> {};

TEST_P(Tiempo, SeEscribeComoLaMascaraGeneral) {
    EXPECT_EQ(TiempoCronometro(GetParam().segundos), GetParam().texto);
}

// Below a day: H:mm:ss. From a day on the value reads as a date after
// 30/12/1899, with the time when there is one.
INSTANTIATE_TEST_SUITE_P(Cronometro, Tiempo,
                         ::testing::Values(CasoTiempo{0, "0:00:00"}, CasoTiempo{1, "0:00:01"},
                                           CasoTiempo{59, "0:00:59"}, CasoTiempo{60, "0:01:00"},
                                           CasoTiempo{3599, "0:59:59"}, CasoTiempo{3600, "1:00:00"},
                                           CasoTiempo{36000 + 61, "10:01:01"},
                                           CasoTiempo{86399, "23:59:59"},
                                           CasoTiempo{86400, "31/12/1899"},
                                           CasoTiempo{86401, "31/12/1899 0:00:01"},
                                           CasoTiempo{2 * 86400 + 3661, "01/01/1900 1:01:01"},
                                           // 1900 was not a leap year.
                                           CasoTiempo{61 * 86400, "01/03/1900"},
                                           CasoTiempo{367 * 86400 + 86399, "01/01/1901 23:59:59"}));

class PanelCronometro : public Motor {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        PreparaPantallaPaneles();
        PonServicio(&ServiciosPlataforma::Texto, &rotulador);
        clips.clear();
        PonEscritorio({nullptr, Anota, nullptr, nullptr});
        Sonido = 1;
        teselari.Pic_Cronome.Move(500, 100);
        teselari.Pic_Cronome.Visible = true;
    }
    void TearDown() override {
        PonServicio(&ServiciosPlataforma::Texto, nullptr);
        PonEscritorio({});
        Motor::TearDown();
    }
    static void Anota(int16_t clip) { clips.push_back(clip); }
    static inline std::vector<int16_t> clips;
    RotuladorRegistro rotulador;
};

TEST_F(PanelCronometro, ElTicSumaUnSegundoYLoEscribeEnElCampo) {
    CuadroImagen &panel = teselari.Pic_Cronome;
    panel.CajaLlena(0, 0, 61, 38, COLOR_NEGRO);
    SegundosCronometro = 3599;
    ArrancaCronometro();
    Timer1_Timer();
    EXPECT_EQ(SegundosCronometro, 3600);
    ASSERT_EQ(rotulador.textos.size(), 1u);
    const auto &t = rotulador.textos[0];
    EXPECT_EQ(t.texto, "1:00:00");
    EXPECT_DOUBLE_EQ(t.x, 8);
    EXPECT_DOUBLE_EQ(t.y, 21);
    EXPECT_EQ(t.color, 0xFF0000u);
    EXPECT_TRUE(t.negrita);
    // The field, 53 x 15 from (4, 19), is cleared to the face's grey; the
    // rest of the face is not touched.
    EXPECT_EQ(panel.Point(4, 19), GRIS_PANEL);
    EXPECT_EQ(panel.Point(56, 33), GRIS_PANEL);
    EXPECT_EQ(panel.Point(3, 19), COLOR_NEGRO);
    EXPECT_EQ(panel.Point(57, 19), COLOR_NEGRO);
    EXPECT_EQ(panel.Point(4, 34), COLOR_NEGRO);
    EXPECT_EQ(panel.Point(4, 18), COLOR_NEGRO);
}

TEST_F(PanelCronometro, ParadoNoCuentaNiEscribe) {
    SegundosCronometro = 42;
    ParaCronometro();
    for (int i = 0; i < 3; ++i) {
        Timer1_Timer();
    }
    EXPECT_EQ(SegundosCronometro, 42);
    EXPECT_TRUE(rotulador.textos.empty());
}

TEST_F(PanelCronometro, OcultoSigueContando) {
    Cronometro = 2;
    teselari.Pic_Cronome.Visible = false;
    SegundosCronometro = 86398;
    ArrancaCronometro();
    Timer1_Timer();
    Timer1_Timer();
    Timer1_Timer();
    EXPECT_EQ(SegundosCronometro, 86401);
    ASSERT_EQ(rotulador.textos.size(), 3u);
    EXPECT_EQ(rotulador.textos[0].texto, "23:59:59");
    EXPECT_EQ(rotulador.textos[1].texto, "31/12/1899");
    EXPECT_EQ(rotulador.textos[2].texto, "31/12/1899 0:00:01");
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
    {"Campo", 30, 25, true, 1, true, false, true},
};

class TeclaCronometro : public PanelCronometro, public ::testing::WithParamInterface<CasoTecla> {};

TEST_P(TeclaCronometro, ActuaSoloDondeCambiaElEstado) {
    const CasoTecla &c = GetParam();
    c.en_marcha ? ArrancaCronometro() : ParaCronometro();
    Pic_Cronome_MouseMove(0, 0, c.x, c.y);
    EXPECT_EQ(CursorPanelNuevo, c.cursor);
    EXPECT_EQ(CursorPanel, c.cursor);
    const CuadroImagen &panel = teselari.Pic_Cronome;
    const char *iconos[] = {"", "MANOBLANCA", "MANOINDICE"};
    if (c.cursor == 0) {
        EXPECT_EQ(panel.MousePointer, PUNTERO_NORMAL);
    } else {
        EXPECT_EQ(panel.MousePointer, PUNTERO_PROPIO);
        EXPECT_EQ(panel.MouseIcon, iconos[c.cursor]);
    }
    Pic_Cronome_MouseDown(1, 0, c.x, c.y);
    EXPECT_EQ(RelojEnMarcha != FALSO, c.en_marcha_tras);
    EXPECT_EQ(clips, c.suena ? std::vector<int16_t>{11} : std::vector<int16_t>{});
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

TEST_F(PanelCronometro, ElPunteroSoloCambiaCuandoCambiaLaZona) {
    ArrancaCronometro();
    Pic_Cronome_MouseMove(0, 0, 40, 25);
    EXPECT_EQ(CursorPanel, 1);
    // Someone else changes the pointer: the same zone doesn't set it again.
    teselari.Pic_Cronome.MousePointer = 12;
    Pic_Cronome_MouseMove(0, 0, 41, 26);
    EXPECT_EQ(teselari.Pic_Cronome.MousePointer, 12);
    Pic_Cronome_MouseMove(0, 0, 40, 8);
    EXPECT_EQ(teselari.Pic_Cronome.MouseIcon, "MANOINDICE");
}

TEST_F(PanelCronometro, ElArrastreMueveUnMarcoYAlSoltarElPanel) {
    FormTeselari &f = teselari;
    Pic_Cronome_MouseDown(1, 0, 40, 25);
    EXPECT_EQ(PanelX, 500);
    EXPECT_EQ(PanelY, 100);
    EXPECT_EQ(AnteriorX, 40);
    Pic_Cronome_MouseMove(1, 0, 140, 75);
    EXPECT_EQ(PanelX, 600);
    EXPECT_EQ(PanelY, 150);
    // The panel waits; the frame, inverted on the board, shows where it goes.
    EXPECT_EQ(f.Pic_Cronome.Left, 500);
    EXPECT_EQ(f.Pic_Trabajo.Point(600, 150), f.Pic_Imagen.Point(600, 150) ^ 0xFFFFFF);
    EXPECT_EQ(f.Pic_Trabajo.Point(661, 188), f.Pic_Imagen.Point(661, 188) ^ 0xFFFFFF);
    EXPECT_EQ(f.Pic_Trabajo.Point(610, 160), f.Pic_Imagen.Point(610, 160));
    Pic_Cronome_MouseMove(1, 0, 150, 85);
    EXPECT_EQ(f.Pic_Trabajo.Point(600, 150), f.Pic_Imagen.Point(600, 150));
    EXPECT_EQ(f.Pic_Trabajo.Point(610, 160), f.Pic_Imagen.Point(610, 160) ^ 0xFFFFFF);
    Pic_Cronome_MouseUp(1, 0, 150, 85);
    EXPECT_EQ(f.Pic_Cronome.Left, 610);
    EXPECT_EQ(f.Pic_Cronome.Top, 160);
    EXPECT_EQ(ArrastrandoPanel, FALSO);
    EXPECT_EQ(CursorPanel, 9);
    EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_COPIA);
    // No frame is left anywhere, not even where the panel stood.
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
}

struct CasoLimite {
    const char *nombre;
    int hv, vv;           // scroll values
    float dx, dy;         // the mouse's way from the press
    int panel_x, panel_y; // the frame's corner before the drop, on the board
    int left, top;        // the panel after the drop, on the screen
};

// The panel starts at (500, 100) on the screen; the view is 1008 x 752 and
// the button column (62 x 667) stands at 946.
const CasoLimite casos_limite[] = {
    {"Libre", 0, 0, -100, 300, 400, 400, 400, 400},
    // Past the right edge the x stays, the y still moves.
    {"PasaLaDerecha", 0, 0, 700, 300, 500, 400, 500, 400},
    {"PasaLaIzquierda", 0, 0, -501, 20, 500, 120, 500, 120},
    {"LlegaALaIzquierda", 0, 0, -500, 20, 0, 120, 0, 120},
    {"PasaArriba", 0, 0, 50, -101, 550, 100, 550, 100},
    {"PasaAbajo", 0, 0, 50, 700, 550, 100, 550, 100},
    {"JustoAbajo", 0, 0, 50, 613, 550, 713, 550, 713},
    // Dropped beside the button column: pushed left of it.
    {"JuntoALosBotones", 0, 0, 440, 0, 940, 100, 884, 100},
    // Below the column it may stand at the edge.
    {"BajoLosBotones", 0, 0, 440, 600, 940, 700, 940, 700},
    // Scrolled: the frame lives in board coordinates, the panel on screen.
    {"Desplazado", 100, 50, 10, 10, 610, 160, 510, 110},
    {"DesplazadoJuntoALosBotones", 100, 50, 446, 0, 1046, 150, 884, 100},
    {"DesplazadoPasaLaDerecha", 100, 50, 447, 0, 600, 150, 500, 100},
};

class LimitesCronometro : public PanelCronometro,
                          public ::testing::WithParamInterface<CasoLimite> {};

TEST_P(LimitesCronometro, ElMarcoNoSaleDeLaVista) {
    const CasoLimite &c = GetParam();
    FormTeselari &f = teselari;
    f.BarraHor.PonValue(c.hv);
    f.BarraVer.PonValue(c.vv);
    Pic_Cronome_MouseDown(1, 0, 20, 25);
    Pic_Cronome_MouseMove(1, 0, 20 + c.dx, 25 + c.dy);
    EXPECT_EQ(PanelX, c.panel_x);
    EXPECT_EQ(PanelY, c.panel_y);
    Pic_Cronome_MouseUp(1, 0, 20 + c.dx, 25 + c.dy);
    EXPECT_EQ(f.Pic_Cronome.Left, c.left);
    EXPECT_EQ(f.Pic_Cronome.Top, c.top);
    EXPECT_EQ(PanelX, c.left + c.hv);
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
}

INSTANTIATE_TEST_SUITE_P(Arrastre, LimitesCronometro, ::testing::ValuesIn(casos_limite),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST_F(PanelCronometro, SinArrastreElBotonArribaNoHaceNada) {
    Pic_Cronome_MouseUp(1, 0, 300, 300);
    EXPECT_EQ(teselari.Pic_Cronome.Left, 500);
    EXPECT_EQ(teselari.Pic_Cronome.Top, 100);
    // A move with the button held but no drag only chooses the pointer.
    Pic_Cronome_MouseMove(1, 0, 40, 25);
    EXPECT_EQ(CursorPanel, 1);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
}

} // namespace
