// Dragging the chronometer and the model: a frame follows the mouse on the
// board, kept inside the view and clear of the button column, and the panel
// goes where the frame stood when the button is released.
#include "paneles_comun.h"
#include "panels/PanelCronometro.h"
#include "panels/PanelModelo.h"

using namespace PuzzGbl;

namespace {

class Arrastre : public Motor {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        PreparaPantallaPaneles();
        teselari.Pic_Cronome.Move(500, 100);
        teselari.Pic_Cronome.Visible = true;
        teselari.Pic_Muestra.Move(300, 500, 200, 150);
        teselari.Pic_Muestra.Visible = true;
    }
    static bool SinMarco() { return MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen); }
};

TEST_F(Arrastre, ElMarcoSigueAlRatonYAlSoltarVaElPanel) {
    FormTeselari &f = teselari;
    Pic_Cronome_MouseDown(1, 0, 40, 25);
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
    EXPECT_TRUE(SinMarco());
    // A release or a held move without a drag moves nothing.
    Pic_Cronome_MouseUp(1, 0, 300, 300);
    Pic_Cronome_MouseMove(1, 0, 40, 25);
    EXPECT_EQ(f.Pic_Cronome.Left, 610);
    EXPECT_EQ(CursorPanel, 1);
    EXPECT_TRUE(SinMarco());
}

TEST_F(Arrastre, ElModeloSoloSeArrastraConElBotonIzquierdo) {
    CuadroImagen &m = teselari.Pic_Muestra;
    for (const int16_t boton : std::initializer_list<int16_t>{2, 4}) {
        Pic_Muestra_MouseDown(boton, 0, 10, 10);
        Pic_Muestra_MouseMove(boton, 0, 60, 30);
        Pic_Muestra_MouseUp(boton, 0, 60, 30);
        EXPECT_EQ(m.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(m.Left, 300);
        EXPECT_TRUE(SinMarco());
    }
    // The press point is rounded: (10, 21).
    Pic_Muestra_MouseDown(1, 0, 10.4f, 20.6f);
    EXPECT_EQ(m.MousePointer, PUNTERO_CUATRO_FLECHAS);
    Pic_Muestra_MouseMove(1, 0, 60, -29);
    EXPECT_EQ(m.Left, 300);
    EXPECT_EQ(m.MousePointer, PUNTERO_CUATRO_FLECHAS);
    Pic_Muestra_MouseUp(1, 0, 60, -29);
    EXPECT_EQ(m.Left, 350);
    EXPECT_EQ(m.Top, 450);
    EXPECT_EQ(m.MousePointer, PUNTERO_NORMAL);
    EXPECT_TRUE(SinMarco());
    // The next move without a button brings the open hand back.
    Pic_Muestra_MouseMove(0, 0, 5, 5);
    EXPECT_EQ(m.MousePointer, PUNTERO_PROPIO);
    EXPECT_EQ(m.MouseIcon, "MANOBLANCA");
}

struct CasoLimite {
    const char *nombre;
    bool modelo;
    int hv, vv;    // scroll values
    float dx, dy;  // the mouse's way from the press
    int left, top; // the panel after the drop
};

// The chronometer (62 x 39) starts at (500, 100) of the screen, the model
// (200 x 150) at (300, 500) of the board. The view is 1008 x 752; the button
// column (62 x 667) stands at 946.
const CasoLimite casos_limite[] = {
    // Past the right edge the x stays, the y still moves.
    {"PasaLaDerecha", false, 0, 0, 700, 300, 500, 400},
    {"PasaLaIzquierda", false, 0, 0, -501, 20, 500, 120},
    {"LlegaALaIzquierda", false, 0, 0, -500, 20, 0, 120},
    {"PasaAbajo", false, 0, 0, 50, 700, 550, 100},
    {"JustoAbajo", false, 0, 0, 50, 613, 550, 713},
    // Dropped beside the button column: pushed left of it.
    {"JuntoALosBotones", false, 0, 0, 440, 0, 884, 100},
    // Below the column it may stand at the edge.
    {"BajoLosBotones", false, 0, 0, 440, 600, 940, 700},
    // Scrolled: the frame lives in board coordinates, the panel on screen.
    {"Desplazado", false, 100, 50, 10, 10, 510, 110},
    {"DesplazadoJuntoALosBotones", false, 100, 50, 446, 0, 884, 100},
    {"DesplazadoPasaLaDerecha", false, 100, 50, 447, 0, 500, 100},
    // The model lives in board coordinates; it can't go low enough to pass
    // under the column on this screen.
    {"ModeloAbajoJuntoALosBotones", true, 0, 0, 508, 100, 746, 600},
    {"ModeloDesplazadoNoLlegaArriba", true, 100, 200, 0, -301, 300, 500},
    {"ModeloDesplazadoArriba", true, 100, 200, 0, -300, 300, 200},
    {"ModeloDesplazadoJuntoALosBotones", true, 100, 200, 608, -300, 846, 200},
};

class Limites : public Arrastre, public ::testing::WithParamInterface<CasoLimite> {};

TEST_P(Limites, ElMarcoNoSaleDeLaVista) {
    const CasoLimite &c = GetParam();
    FormTeselari &f = teselari;
    f.BarraHor.PonValue(c.hv);
    f.BarraVer.PonValue(c.vv);
    const auto pulsa = c.modelo ? Pic_Muestra_MouseDown : Pic_Cronome_MouseDown;
    const auto mueve = c.modelo ? Pic_Muestra_MouseMove : Pic_Cronome_MouseMove;
    const auto suelta = c.modelo ? Pic_Muestra_MouseUp : Pic_Cronome_MouseUp;
    pulsa(1, 0, 20, 25);
    mueve(1, 0, 20 + c.dx, 25 + c.dy);
    suelta(1, 0, 20 + c.dx, 25 + c.dy);
    const CuadroImagen &panel = c.modelo ? f.Pic_Muestra : f.Pic_Cronome;
    EXPECT_EQ(panel.Left, c.left);
    EXPECT_EQ(panel.Top, c.top);
    EXPECT_TRUE(SinMarco());
}

INSTANTIATE_TEST_SUITE_P(Paneles, Limites, ::testing::ValuesIn(casos_limite),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

} // namespace
