// The model panel: its drag with the left button, its pointer.
#include "paneles_comun.h"
#include "panels/PanelModelo.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

class PanelModelo : public Motor {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        PreparaPantallaPaneles();
        CuadroImagen &m = teselari.Pic_Muestra;
        m.Move(300, 500, 200, 150);
        m.Visible = true;
    }
};

TEST_F(PanelModelo, SoloElBotonIzquierdoArrastra) {
    FormTeselari &f = teselari;
    for (const int16_t boton : std::initializer_list<int16_t>{2, 4}) {
        Pic_Muestra_MouseDown(boton, 0, 10, 10);
        Pic_Muestra_MouseMove(boton, 0, 60, 30);
        Pic_Muestra_MouseUp(boton, 0, 60, 30);
        EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_COPIA);
        EXPECT_EQ(f.Pic_Muestra.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(f.Pic_Muestra.Left, 300);
        EXPECT_EQ(f.Pic_Muestra.Top, 500);
        // No frame was drawn.
        EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
    }
}

TEST_F(PanelModelo, ElArrastreMueveUnMarcoYAlSoltarElModelo) {
    FormTeselari &f = teselari;
    Pic_Muestra_MouseDown(1, 0, 10.4f, 20.6f);
    EXPECT_EQ(AnteriorX, 10);
    EXPECT_EQ(AnteriorY, 21);
    EXPECT_EQ(f.Pic_Muestra.MousePointer, PUNTERO_CUATRO_FLECHAS);
    EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_INVIERTE);
    Pic_Muestra_MouseMove(1, 0, 60, -29);
    EXPECT_EQ(PanelX, 350);
    EXPECT_EQ(PanelY, 450);
    EXPECT_EQ(f.Pic_Muestra.Left, 300);
    EXPECT_EQ(f.Pic_Trabajo.Point(350, 450), f.Pic_Imagen.Point(350, 450) ^ 0xFFFFFF);
    EXPECT_EQ(f.Pic_Trabajo.Point(549, 599), f.Pic_Imagen.Point(549, 599) ^ 0xFFFFFF);
    EXPECT_EQ(f.Pic_Trabajo.Point(400, 520), f.Pic_Imagen.Point(400, 520));
    // The pointer isn't touched while the button is held.
    EXPECT_EQ(f.Pic_Muestra.MousePointer, PUNTERO_CUATRO_FLECHAS);
    Pic_Muestra_MouseUp(1, 0, 60, -29);
    EXPECT_EQ(f.Pic_Muestra.Left, 350);
    EXPECT_EQ(f.Pic_Muestra.Top, 450);
    EXPECT_EQ(f.Pic_Muestra.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_COPIA);
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
    // The next move without a button brings the open hand back.
    Pic_Muestra_MouseMove(0, 0, 5, 5);
    EXPECT_EQ(f.Pic_Muestra.MousePointer, PUNTERO_PROPIO);
    EXPECT_EQ(f.Pic_Muestra.MouseIcon, "MANOBLANCA");
}

struct CasoModelo {
    const char *nombre;
    int hv, vv;
    int dx, dy;
    int left, top; // the model after the drop, in board coordinates
};

// The model (200 x 150) starts at (300, 500) of the board. The view is
// 1008 x 752; the button column is 62 x 667 at 946.
const CasoModelo casos_modelo[] = {
    {"Libre", 0, 0, -300, -500, 0, 0},
    {"PasaLaIzquierda", 0, 0, -301, -100, 300, 400},
    {"PasaAbajo", 0, 0, 100, 103, 400, 500},
    {"LlegaAbajo", 0, 0, 100, 102, 400, 602},
    {"PasaLaDerecha", 0, 0, 509, 10, 300, 510},
    // At the right edge beside the buttons: pushed left of them.
    {"JuntoALosBotones", 0, 0, 508, -400, 746, 100},
    // The model can't go low enough to pass under the column on this screen.
    {"AbajoJuntoALosBotones", 0, 0, 508, 100, 746, 600},
    // Scrolled: the limits follow the bars.
    {"DesplazadoNoLlegaArriba", 100, 200, 0, -301, 300, 500},
    {"DesplazadoArriba", 100, 200, 0, -300, 300, 200},
    {"DesplazadoJuntoALosBotones", 100, 200, 608, -300, 846, 200},
    {"DesplazadoPasaLaIzquierda", 100, 200, -201, 0, 300, 500},
};

class LimitesModelo : public PanelModelo, public ::testing::WithParamInterface<CasoModelo> {};

TEST_P(LimitesModelo, ElMarcoNoSaleDeLaVista) {
    const CasoModelo &c = GetParam();
    FormTeselari &f = teselari;
    f.BarraHor.PonValue(c.hv);
    f.BarraVer.PonValue(c.vv);
    Pic_Muestra_MouseDown(1, 0, 50, 50);
    Pic_Muestra_MouseMove(1, 0, static_cast<float>(50 + c.dx), static_cast<float>(50 + c.dy));
    Pic_Muestra_MouseUp(1, 0, static_cast<float>(50 + c.dx), static_cast<float>(50 + c.dy));
    EXPECT_EQ(f.Pic_Muestra.Left, c.left);
    EXPECT_EQ(f.Pic_Muestra.Top, c.top);
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
}

INSTANTIATE_TEST_SUITE_P(Arrastre, LimitesModelo, ::testing::ValuesIn(casos_modelo),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

} // namespace
