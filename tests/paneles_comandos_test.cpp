// The commands on the board and the model, and those that leave the board,
// each run on its own: the model, the hidden pieces, the tutor, the help.
// The deal is the board's; that each command leaves its button up is the
// dispatcher's table.
#include <array>

#include "board/Render.h"
#include "core/Cronometro.h"
#include "cutting/Corte.h"
#include "paneles_comun.h"
#include "panels/Comandos.h"
#include "panels/Ordenes.h"
#include "plataforma_prueba.h"
#include "raster/Raster.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

class Comandos : public Motor {
  protected:
    void SetUp() override {
        PreparaJuego(4, 0, 400, 300);
        PintaTiraPrueba(teselari.Pic_BmpBoton);
        PreparaBitmap();
    }
};

TEST_F(Comandos, ElModeloAparecePorAbajoYDesaparece) {
    FormTeselari &f = teselari;
    CuadroImagen &m = f.Pic_Muestra;
    f.BarraVer.PonMax(100);
    f.BarraVer.PonValue(40);
    ModeloVisible = false;
    // Shown at the foot of the view, centred; hidden where the player left it.
    for (const bool visible : {true, false, true}) {
        m.Move(7, 9);
        MuestraOcultaModelo();
        EXPECT_EQ(ModeloVisible, visible);
        EXPECT_EQ(m.Visible, visible);
        EXPECT_EQ(m.Left, visible ? (1024 - m.Ancho()) / 2 : 7);
        EXPECT_EQ(m.Top, visible ? f.BarraHor.Top - m.Alto() + 40 : 9);
    }
}

TEST_F(Comandos, LasPiezasOcultasSubenDesdeAbajo) {
    // Every third piece of the pile, counted from the top, is at its place.
    std::vector<int16_t> sueltas, colocadas;
    for (int16_t i = 1; i <= NroPiezas; ++i) {
        Pieza &q = Piezas[OrdenPiezas[i]];
        if (i % 3 == 0) {
            q.X = q.XCorrecta;
            q.Y = q.YCorrecta;
            colocadas.push_back(OrdenPiezas[i]);
        } else {
            if (q.X == q.XCorrecta && q.Y == q.YCorrecta) {
                q.X += 1;
            }
            sueltas.push_back(OrdenPiezas[i]);
        }
    }
    RepintaTablero();
    MuestraPiezasOcultas();
    // The loose pieces on top in their earlier order, the placed ones below.
    std::vector<int16_t> esperado = sueltas;
    esperado.insert(esperado.end(), colocadas.begin(), colocadas.end());
    EXPECT_EQ(std::vector<int16_t>(OrdenPiezas.begin() + 1, OrdenPiezas.end()), esperado);
    // Every piece that came up was shown on the screen as on the board.
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
}

// The tutor inverts the piece and its place in turn, eight times each.
TEST_F(Comandos, ElTutorParpadeaEntreLaPiezaYSuSitio) {
    FormTeselari &f = teselari;
    const Pieza q = Piezas[OrdenPiezas[1]];
    ASSERT_FALSE(q.X == q.XCorrecta && q.Y == q.YCorrecta);
    const Superficie antes = f.Pic_Trabajo;
    std::vector<Rectangulo> rectangulos;
    Color esquina = 0; // the piece's corner after the first inversion
    f.Pic_Trabajo.AlCambiar = [&](const Rectangulo &r) {
        if (rectangulos.empty()) {
            esquina = teselari.Pic_Trabajo.Point(q.X, q.Y);
        }
        rectangulos.push_back(r);
    };
    MuestraTutor();
    const Rectangulo pieza{q.X, q.Y, q.X + AnchoPieza + 1, q.Y + AltoPieza + 1};
    const Rectangulo sitio{q.XCorrecta, q.YCorrecta, q.XCorrecta + AnchoPieza + 1,
                           q.YCorrecta + AltoPieza + 1};
    ASSERT_EQ(rectangulos.size(), 16u);
    for (size_t i = 0; i < 16; i += 2) {
        EXPECT_EQ(rectangulos[i], Interseccion(pieza, f.Pic_Trabajo.Limites()));
        EXPECT_EQ(rectangulos[i + 1], Interseccion(sitio, f.Pic_Trabajo.Limites()));
    }
    EXPECT_EQ(esquina, antes.Point(q.X, q.Y) ^ 0xFFFFFF);
    // Eight passes: both places end as they were.
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, antes));
    EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_COPIA);
}

// With the top piece at its place nothing blinks.
TEST_F(Comandos, ConLaDeArribaColocadaElTutorNoParpadea) {
    ColocaPiezasEnCasa();
    int cambios = 0;
    teselari.Pic_Trabajo.AlCambiar = [&cambios](const Rectangulo &) { ++cambios; };
    MuestraTutor();
    EXPECT_EQ(cambios, 0);
}

class FueraDelTablero : public Comandos, public ::testing::WithParamInterface<int> {};

// 1, 2 and 10 stop the clock while away and start it again afterwards,
// whatever state it had; the seconds are kept. The help opens on its
// contents, with its button down and the clock stopped.
TEST_P(FueraDelTablero, ElRelojVuelveAAndar) {
    const int16_t b = static_cast<int16_t>(GetParam());
    static std::vector<std::array<int16_t, 3>> ayudas; // topic, button 1, clock
    ayudas.clear();
    PonServicio(&ServiciosPlataforma::MuestraAyuda, [](int16_t tema) {
        ayudas.push_back({tema, BotonPulsado[1], RelojEnMarcha});
    });
    for (bool en_marcha : {false, true}) {
        en_marcha ? ArrancaCronometro() : ParaCronometro();
        SegundosCronometro = 1234;
        int pasos_cronome = 0;
        teselari.Pic_Cronome.AlCambiar = [&pasos_cronome](const Rectangulo &) { ++pasos_cronome; };
        PulsaBoton(b);
        teselari.Pic_Cronome.AlCambiar = nullptr;
        EXPECT_EQ(RelojEnMarcha, VERDADERO);
        EXPECT_EQ(SegundosCronometro, 1234);
        // Both keys were drawn twice: stopped, then running.
        EXPECT_EQ(pasos_cronome, 12);
    }
    const std::array<int16_t, 3> ayuda{0, VERDADERO, FALSO};
    EXPECT_EQ(ayudas, std::vector(b == 1 ? 2u : 0u, ayuda));
}

INSTANTIATE_TEST_SUITE_P(Comandos, FueraDelTablero, ::testing::Values(1, 2, 10));

} // namespace
