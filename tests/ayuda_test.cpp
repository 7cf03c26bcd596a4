// The help book from the game's side: command 1 opens the contents with the
// clock stopped around the call, and every topic number finds its page and
// its own anchor, any other number the contents.
#include <string>
#include <vector>

#include "cutting/Corte.h"
#include "paneles_comun.h"
#include "panels/Comandos.h"
#include "panels/Cronometro.h"
#include "panels/Paneles.h"
#include "services/Ayuda.h"

using namespace PuzzGbl;

namespace {

struct Llamada {
    int16_t tema;
    int16_t boton_pulsado;
    int16_t reloj;
};
std::vector<Llamada> llamadas;

void AyudaDoble(int16_t tema) {
    llamadas.push_back({tema, BotonPulsado[1], RelojEnMarcha});
}

class Ayuda : public Motor {
  protected:
    void SetUp() override {
        llamadas.clear();
        PonMostradorAyuda(AyudaDoble);
        PreparaJuego(4, 0, 400, 300);
        PintaTiraPrueba(teselari.Pic_BmpBoton);
        PreparaBitmap();
        DibujaBotonesSiempre();
    }
    void TearDown() override {
        PonMostradorAyuda(nullptr);
        Motor::TearDown();
    }
};

// While the book opens the button is down and the clock stopped; afterwards
// the button is up and the clock runs, whatever it did before.
TEST_F(Ayuda, ElUnoAbreElContenidoConElRelojParado) {
    for (bool en_marcha : {false, true}) {
        llamadas.clear();
        en_marcha ? ArrancaCronometro() : ParaCronometro();
        PulsaBoton(1);
        ASSERT_EQ(llamadas.size(), 1u);
        EXPECT_EQ(llamadas[0].tema, 0);
        EXPECT_EQ(llamadas[0].boton_pulsado, VERDADERO);
        EXPECT_EQ(llamadas[0].reloj, FALSO);
        EXPECT_EQ(BotonPulsado[1], FALSO);
        EXPECT_EQ(RelojEnMarcha, VERDADERO);
    }
}

// The coloured view ends before the book opens, as for any other command.
TEST_F(Ayuda, ElUnoTerminaLaVistaDeColores) {
    ModoColocadas = VERDADERO;
    PulsaBoton(1);
    EXPECT_EQ(ModoColocadas, FALSO);
    EXPECT_EQ(llamadas.size(), 1u);
}

// No other command opens the book.
TEST_F(Ayuda, NingunOtroComandoAbreElLibro) {
    for (int16_t b : {3, 4, 5, 6, 8, 12, 0}) {
        PulsaBoton(b);
    }
    EXPECT_TRUE(llamadas.empty());
}

struct CasoTema {
    int16_t tema;
    const char *pagina;
};

class Temas : public ::testing::TestWithParam<CasoTema> {};

// Each number lies on the page of its subject, at the anchor "t" + number.
TEST_P(Temas, CadaNumeroTieneSuPaginaYSuAncla) {
    const CasoTema c = GetParam();
    EXPECT_TRUE(TemaConocido(c.tema));
    EXPECT_EQ(DestinoAyuda(c.tema), std::string(c.pagina) + "#t" + std::to_string(c.tema));
}

INSTANTIATE_TEST_SUITE_P(
    Libro, Temas,
    ::testing::Values(CasoTema{1120, "juego.html"}, CasoTema{1210, "paneles.html"},
                      CasoTema{1290, "paneles.html"}, CasoTema{1280, "cronometro.html"},
                      CasoTema{1250, "historico.html"}, CasoTema{1230, "personalizar.html"},
                      CasoTema{1231, "personalizar.html"}, CasoTema{1232, "personalizar.html"},
                      CasoTema{1233, "personalizar.html"}, CasoTema{1234, "personalizar.html"},
                      CasoTema{1235, "personalizar.html"}, CasoTema{1236, "personalizar.html"},
                      CasoTema{1237, "personalizar.html"}, CasoTema{1238, "personalizar.html"},
                      CasoTema{1239, "personalizar.html"}, CasoTema{1240, "personalizar.html"},
                      CasoTema{1241, "personalizar.html"}, CasoTema{1242, "personalizar.html"},
                      CasoTema{1602, "personalizar.html"}, CasoTema{1603, "personalizar.html"}));

// 0 and every number the book doesn't know lead to the contents.
TEST(TemasDesconocidos, LlevanAlContenido) {
    EXPECT_TRUE(TemaConocido(0));
    for (int16_t tema : {0, -1, 1, 1119, 1121, 1229, 1243, 1601, 1604, 32767}) {
        EXPECT_EQ(DestinoAyuda(tema), "indice.html") << tema;
        EXPECT_EQ(TemaConocido(tema), tema == 0) << tema;
    }
}

} // namespace
