// The commands on the board and the model, and those that leave the board,
// each run on its own: the model, a new deal, the hidden pieces, the tutor.
#include <algorithm>

#include "board/Render.h"
#include "core/Cronometro.h"
#include "cutting/Corte.h"
#include "paneles_comun.h"
#include "panels/Ordenes.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

class Comandos : public Motor {
  protected:
    void SetUp() override {
        PreparaJuego(4, 0, 400, 300);
        PintaTiraPrueba(teselari.Pic_BmpBoton);
        PreparaBitmap();
        IgualaTrabajo();
    }
    // The board on the screen as its twin holds it.
    static void IgualaTrabajo() {
        FormTeselari &f = teselari;
        BitBlt(f.Pic_Trabajo, 0, 0, f.Pic_Imagen.Ancho(), f.Pic_Imagen.Alto(), f.Pic_Imagen, 0, 0,
               SRCCOPY);
    }
    static void EsperaBotonArriba(int16_t b) {
        EXPECT_EQ(BotonPulsado[b], FALSO);
        EXPECT_EQ(teselari.Pic_BotonSiempre[b].Point(3, 3), CuerpoPrueba(b));
        EXPECT_EQ(teselari.MousePointer, 0);
    }
};

TEST_F(Comandos, ElModeloAparecePorAbajoYDesaparece) {
    FormTeselari &f = teselari;
    CuadroImagen &m = f.Pic_Muestra;
    f.BarraVer.PonMax(100);
    f.BarraVer.PonValue(40);
    ModeloVisible = false;
    m.Move(7, 9);
    MuestraOcultaModelo();
    EXPECT_TRUE(ModeloVisible);
    EXPECT_TRUE(m.Visible);
    EXPECT_EQ(m.Left, (1024 - m.Ancho()) / 2);
    EXPECT_EQ(m.Top, f.BarraHor.Top - m.Alto() + 40);
    EsperaBotonArriba(3);
    // Hidden where the player left it; shown again, back at the foot.
    m.Move(7, 9);
    MuestraOcultaModelo();
    EXPECT_FALSE(ModeloVisible);
    EXPECT_FALSE(m.Visible);
    EXPECT_EQ(m.Left, 7);
    MuestraOcultaModelo();
    EXPECT_EQ(m.Left, (1024 - m.Ancho()) / 2);
    EXPECT_EQ(m.Top, f.BarraHor.Top - m.Alto() + 40);
    EsperaBotonArriba(3);
}

TEST_F(Comandos, BarajarReparteDeNuevo) {
    const std::vector<Pieza> antes = Piezas;
    SegundosCronometro = 777;
    PartidaValida = FALSO;
    ParaCronometro();
    BotonPulsado[4] = VERDADERO;
    BarajaDeNuevo();
    EXPECT_EQ(SegundosCronometro, 0);
    EXPECT_EQ(PartidaValida, VERDADERO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
    EXPECT_NE(Piezas, antes);
    std::vector<int16_t> orden(OrdenPiezas.begin() + 1, OrdenPiezas.end());
    std::sort(orden.begin(), orden.end());
    for (size_t i = 0; i < orden.size(); ++i) {
        EXPECT_EQ(orden[i], static_cast<int16_t>(i + 1));
    }
    EsperaBotonArriba(4);
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
    teselari.Pic_Imagen.QuitaImagen();
    for (int16_t i = NroPiezas; i >= 1; --i) {
        MuestraPieza(teselari.Pic_Imagen, i);
    }
    IgualaTrabajo();
    MuestraPiezasOcultas();
    // The loose pieces on top in their earlier order, the placed ones below.
    std::vector<int16_t> esperado = sueltas;
    esperado.insert(esperado.end(), colocadas.begin(), colocadas.end());
    EXPECT_EQ(std::vector<int16_t>(OrdenPiezas.begin() + 1, OrdenPiezas.end()), esperado);
    // Every piece that came up was shown on the screen as on the board.
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
    EsperaBotonArriba(5);
}

TEST_F(Comandos, ConTodasColocadasNadaCambiaDeSitio) {
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        Piezas[k].X = Piezas[k].XCorrecta;
        Piezas[k].Y = Piezas[k].YCorrecta;
    }
    const std::vector<int16_t> orden = OrdenPiezas;
    MuestraPiezasOcultas();
    EXPECT_EQ(OrdenPiezas, orden);
    EsperaBotonArriba(5);
}

// The tutor: the rectangles reported by the board while it blinks.
struct Parpadeo {
    std::vector<Rectangulo> rectangulos;
    std::vector<Color> esquinas; // the pixel at the piece's corner, each time
};

TEST_F(Comandos, ElTutorParpadeaEntreLaPiezaYSuSitio) {
    FormTeselari &f = teselari;
    const Pieza q = Piezas[OrdenPiezas[1]];
    ASSERT_FALSE(q.X == q.XCorrecta && q.Y == q.YCorrecta);
    const Superficie antes = f.Pic_Trabajo;
    Parpadeo p;
    f.Pic_Trabajo.AlCambiar = [&p, &q](const Rectangulo &r) {
        p.rectangulos.push_back(r);
        p.esquinas.push_back(teselari.Pic_Trabajo.Point(q.X, q.Y));
    };
    MuestraTutor();
    f.Pic_Trabajo.AlCambiar = nullptr;
    const Rectangulo pieza{q.X, q.Y, q.X + AnchoPieza + 1, q.Y + AltoPieza + 1};
    const Rectangulo sitio{q.XCorrecta, q.YCorrecta, q.XCorrecta + AnchoPieza + 1,
                           q.YCorrecta + AltoPieza + 1};
    ASSERT_EQ(p.rectangulos.size(), 16u);
    for (size_t i = 0; i < 16; i += 2) {
        EXPECT_EQ(p.rectangulos[i], Interseccion(pieza, f.Pic_Trabajo.Limites()));
        EXPECT_EQ(p.rectangulos[i + 1], Interseccion(sitio, f.Pic_Trabajo.Limites()));
    }
    // After the first inversion the corner shows inverted.
    EXPECT_EQ(p.esquinas[0], antes.Point(q.X, q.Y) ^ 0xFFFFFF);
    // Eight passes: both places end as they were.
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, antes));
    EXPECT_EQ(f.Pic_Trabajo.DrawMode, DRAWMODE_COPIA);
    EsperaBotonArriba(8);
}

TEST_F(Comandos, ConLaPiezaDeArribaEnSuSitioElTutorNoParpadea) {
    FormTeselari &f = teselari;
    Pieza &q = Piezas[OrdenPiezas[1]];
    q.X = q.XCorrecta;
    q.Y = q.YCorrecta;
    int cambios = 0;
    f.Pic_Trabajo.AlCambiar = [&cambios](const Rectangulo &) { ++cambios; };
    MuestraTutor();
    f.Pic_Trabajo.AlCambiar = nullptr;
    EXPECT_EQ(cambios, 0);
    EsperaBotonArriba(8);
}

class FueraDelTablero : public Comandos, public ::testing::WithParamInterface<int> {};

// 1, 2 and 10 stop the clock while away and start it again afterwards,
// whatever state it had; the seconds are kept.
TEST_P(FueraDelTablero, ElRelojVuelveAAndar) {
    const int16_t b = static_cast<int16_t>(GetParam());
    void (*comandos[])() = {
        nullptr, AbreAyuda, PersonalizaAplicacion, nullptr, nullptr, nullptr, nullptr, nullptr,
        nullptr, nullptr,   AbreHistorico};
    for (bool en_marcha : {false, true}) {
        en_marcha ? ArrancaCronometro() : ParaCronometro();
        SegundosCronometro = 1234;
        int pasos_cronome = 0;
        teselari.Pic_Cronome.AlCambiar = [&pasos_cronome](const Rectangulo &) { ++pasos_cronome; };
        comandos[b]();
        teselari.Pic_Cronome.AlCambiar = nullptr;
        EXPECT_EQ(RelojEnMarcha, VERDADERO);
        EXPECT_EQ(SegundosCronometro, 1234);
        // Both keys were drawn twice: stopped, then running.
        EXPECT_EQ(pasos_cronome, 12);
        EsperaBotonArriba(b);
    }
}

INSTANTIATE_TEST_SUITE_P(Comandos, FueraDelTablero, ::testing::Values(1, 2, 10));

} // namespace
