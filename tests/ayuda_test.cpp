// The help book from the game's side: command 1 opens the contents with the
// clock stopped around the call, and a number the book doesn't know leads
// to the contents.
#include <string>
#include <vector>

#include "core/Cronometro.h"
#include "cutting/Corte.h"
#include "paneles_comun.h"
#include "panels/Comandos.h"
#include "panels/Paneles.h"
#include "plataforma_prueba.h"
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
        PonServicio(&ServiciosPlataforma::MuestraAyuda, AyudaDoble);
        PreparaJuego(4, 0, 400, 300);
        PintaTiraPrueba(teselari.Pic_BmpBoton);
        PreparaBitmap();
        DibujaBotonesSiempre();
    }
    void TearDown() override {
        PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
        Motor::TearDown();
    }
};

// While the book opens the button is down and the clock stopped; afterwards
// the button is up and the clock runs, whatever it did before. A coloured
// view ends first, as for any other command.
TEST_F(Ayuda, ElUnoAbreElContenidoConElRelojParado) {
    for (bool en_marcha : {false, true}) {
        llamadas.clear();
        en_marcha ? ArrancaCronometro() : ParaCronometro();
        ModoColocadas = VERDADERO;
        PulsaBoton(1);
        EXPECT_EQ(ModoColocadas, FALSO);
        ASSERT_EQ(llamadas.size(), 1u);
        EXPECT_EQ(llamadas[0].tema, 0);
        EXPECT_EQ(llamadas[0].boton_pulsado, VERDADERO);
        EXPECT_EQ(llamadas[0].reloj, FALSO);
        EXPECT_EQ(BotonPulsado[1], FALSO);
        EXPECT_EQ(RelojEnMarcha, VERDADERO);
    }
}

// No other command opens the book.
TEST_F(Ayuda, NingunOtroComandoAbreElLibro) {
    for (const int16_t b : std::initializer_list<int16_t>{3, 4, 5, 6, 8, 12, 0}) {
        PulsaBoton(b);
    }
    EXPECT_TRUE(llamadas.empty());
}

// 0 and every number the book doesn't know lead to the contents.
TEST(TemasDesconocidos, LlevanAlContenido) {
    for (const int16_t tema :
         std::initializer_list<int16_t>{0, -1, 1, 1119, 1121, 1229, 1243, 1601, 1604, 32767}) {
        EXPECT_EQ(DestinoAyuda(tema), "indice.html") << tema;
    }
}

} // namespace
