// The commands pressed on the panel's buttons through the real window, also
// from inside the yields of the long routines: which modes a command ends,
// which buttons stay down on the screen, the lay-out stopped after the piece
// in hand, the solver started during the lay-out, and the pile the solver
// leaves.
#include <sstream>

#include "board/Render.h"
#include "juego_qt_comun.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

namespace {

enum Modo { COLOCADAS, ORDENAR, RESOLVER };
const char *const NOMBRES_MODO[] = {"Colocadas", "Ordenar", "Resolver"};

// The command that starts each mode.
int16_t BotonDelModo(Modo m) {
    return m == COLOCADAS ? 6 : m == ORDENAR ? 7 : 9;
}

struct Estado {
    bool colocadas, ordenar, resolver;
    bool pulsado6, pulsado7, pulsado9;
    int vistoPulsado6, vistoPulsado7, vistoPulsado9; // on the screen: 1 down, 0 up, -1 neither
};

struct Transicion {
    Modo modo;
    int16_t comando;
};

void PrintTo(const Transicion &t, std::ostream *os) {
    *os << NOMBRES_MODO[t.modo] << " then " << t.comando;
}

std::vector<Transicion> Transiciones() {
    std::vector<Transicion> t;
    for (Modo m : {COLOCADAS, ORDENAR, RESOLVER}) {
        for (int16_t c : {3, 4, 5, 6, 7, 8, 9}) {
            t.push_back({m, c});
        }
    }
    return t;
}

} // namespace

class ComandosQt : public JuegoQt {
  protected:
    // Sixteen pieces of 80 x 60, all away from home, apart from one another.
    void PreparaDesordenado() {
        Prepara(4, 0, 320, 240);
        for (int16_t k = 1; k <= NroPiezas; ++k) {
            PonPieza(k, 380 + (k - 1) % 4 * 100, 60 + (k - 1) / 4 * 80);
        }
        RepintaTablero();
        ASSERT_EQ(PiezasColocadas, 0);
    }

    // A click on the command's button of the always-visible panel.
    void Clic(int16_t b) {
        QTest::mouseClick(ventana->Pic_BotonSiempre[b], Qt::LeftButton, {}, QPoint(28, 28));
    }

    // Whether button b shows pressed on the screen (1), up (0) or neither
    // (-1), against the two looks drawn afresh.
    int VistoPulsado(int16_t b) {
        Superficie arriba = teselari.Pic_BotonSiempre[b], abajo = arriba;
        arriba.AlCambiar = nullptr;
        abajo.AlCambiar = nullptr;
        const int16_t antes = BotonPulsado[b];
        BotonPulsado[b] = FALSO;
        DibuBot(b, arriba);
        BotonPulsado[b] = VERDADERO;
        DibuBot(b, abajo);
        BotonPulsado[b] = antes;
        EXPECT_FALSE(MismosPixeles(arriba, abajo));
        const QPoint p = ventana->Pic_BotonSiempre[b]->mapTo(ventana.get(), QPoint(0, 0));
        const QImage visto = QGuiApplication::primaryScreen()
                                 ->grabWindow(ventana->winId(), p.x(), p.y(), 56, 56)
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        auto igual = [&visto](const Superficie &s) {
            for (int y = 0; y < 56; ++y) {
                for (int x = 0; x < 56; ++x) {
                    if ((visto.pixel(x, y) & 0xFFFFFF) != (s.Fila(y)[x] & 0xFFFFFF)) {
                        return false;
                    }
                }
            }
            return true;
        };
        return igual(abajo) ? 1 : igual(arriba) ? 0 : -1;
    }

    Estado Observa() {
        return {ModoColocadas != FALSO,   ModoOrdenar != FALSO,     ModoResolver != FALSO,
                BotonPulsado[6] != FALSO, BotonPulsado[7] != FALSO, BotonPulsado[9] != FALSO,
                VistoPulsado(6),          VistoPulsado(7),          VistoPulsado(9)};
    }
};

class TransicionesQt : public ComandosQt, public testing::WithParamInterface<Transicion> {};

// The first state after the click: at the next yield of the game (inside a
// routine the command started) or, if none comes, when the click returns.
TEST_P(TransicionesQt, ElComandoTerminaLosModosQueExcluye) {
    const Transicion t = GetParam();
    PreparaDesordenado();
    bool pulsado = false, observado = false;
    Estado e{};
    alCederEventos = [&](int32_t n) {
        if (pulsado && !observado) {
            e = Observa();
            observado = true;
        }
        if (n == 1 && t.modo != COLOCADAS && !pulsado) {
            // The running routine's own mode, seen from inside it.
            EXPECT_EQ(t.modo == ORDENAR ? ModoOrdenar : ModoResolver, VERDADERO);
            EXPECT_EQ(VistoPulsado(BotonDelModo(t.modo)), 1);
            pulsado = true;
            Clic(t.comando);
            if (!observado) {
                e = Observa();
                observado = true;
            }
        }
    };
    Clic(BotonDelModo(t.modo));
    if (t.modo == COLOCADAS) {
        ASSERT_EQ(ModoColocadas, VERDADERO);
        pulsado = true;
        Clic(t.comando);
        if (!observado) {
            e = Observa();
            observado = true;
        }
    }
    ASSERT_TRUE(observado);
    // Each of the three modes is toggled by its own command and cleared by
    // any other; the buttons of the running routines stay down on the
    // screen, the coloured view's goes up at once.
    const bool colocadas = t.comando == 6 && t.modo != COLOCADAS;
    const bool ordenar = t.comando == 7 && t.modo != ORDENAR;
    const bool resolver = t.comando == 9 && t.modo != RESOLVER;
    EXPECT_EQ(e.colocadas, colocadas);
    EXPECT_EQ(e.ordenar, ordenar);
    EXPECT_EQ(e.resolver, resolver);
    EXPECT_FALSE(e.pulsado6);
    EXPECT_EQ(e.pulsado7, ordenar);
    EXPECT_EQ(e.pulsado9, resolver);
    EXPECT_EQ(e.vistoPulsado6, 0);
    EXPECT_EQ(e.vistoPulsado7, ordenar ? 1 : 0);
    EXPECT_EQ(e.vistoPulsado9, resolver ? 1 : 0);
    // When everything has ended only the coloured view may last, and every
    // button is up on the screen.
    EXPECT_EQ(ModoColocadas != 0, colocadas);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    for (int16_t b : {3, 4, 5, 6, 7, 8, 9}) {
        EXPECT_EQ(BotonPulsado[b], FALSO) << b;
        EXPECT_EQ(VistoPulsado(b), 0) << b;
    }
    EXPECT_TRUE(mensajes.empty());
}

INSTANTIATE_TEST_SUITE_P(Modos, TransicionesQt, testing::ValuesIn(Transiciones()),
                         [](const testing::TestParamInfo<Transicion> &i) {
                             std::ostringstream n;
                             n << NOMBRES_MODO[i.param.modo] << "_" << i.param.comando;
                             return n.str();
                         });

class OrdenParadoQt : public ComandosQt, public testing::WithParamInterface<int> {};

// The lay-out's button pressed again after j pieces have arrived: the
// routine lets no further piece go and ends at once.
TEST_P(OrdenParadoQt, ElSieteParaTrasLaPiezaEnLaMano) {
    const int j = GetParam();
    PreparaDesordenado();
    std::vector<Pieza> antes(Piezas.begin(), Piezas.end());
    int cedidos = 0;
    alCederEventos = [&](int32_t n) {
        cedidos = n;
        if (n == j) {
            // The piece in hand has arrived: it is on the screen, and on
            // the composite again.
            std::string donde;
            EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
            Clic(7);
            EXPECT_EQ(ModoOrdenar, FALSO);
            EXPECT_EQ(VistoPulsado(7), 0);
        }
    };
    Clic(7);
    EXPECT_EQ(cedidos, j);
    int movidas = 0;
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        movidas += Piezas[k].X != antes[k].X || Piezas[k].Y != antes[k].Y ? 1 : 0;
    }
    EXPECT_EQ(movidas, j);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(BotonPulsado[7], FALSO);
    EXPECT_EQ(VistoPulsado(7), 0);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
    // The board is playable again: a press picks the top piece.
    const Pieza &arriba = Piezas[OrdenPiezas[1]];
    Pulsa(arriba.X + 40, arriba.Y + 30);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    Suelta(arriba.X + 40, arriba.Y + 30);
}

INSTANTIATE_TEST_SUITE_P(Piezas, OrdenParadoQt, testing::Values(1, 2, 5, 15));

class ResolverQt : public ComandosQt, public testing::WithParamInterface<int> {};

// The solver from its button, at rest (0) or pressed after j pieces of the
// lay-out: it places every piece and leaves the pile as it found it.
TEST_P(ResolverQt, ColocaTodoYDejaLaPilaComoEstaba) {
    const int j = GetParam();
    PreparaDesordenado();
    PartidaValida = VERDADERO;
    std::vector<int16_t> pila(OrdenPiezas.begin(), OrdenPiezas.end());
    if (j == 0) {
        // Each piece sounds when it has arrived, before any event is let
        // through: the screen has followed the move by itself.
        Sonido = 1;
        int distintos = 0, llegadas = 0;
        alSonar = [&](int16_t clip) {
            llegadas += clip == 6 ? 1 : 0;
            distintos += PixelesDistintosEnPantalla();
        };
        Clic(9);
        EXPECT_EQ(llegadas, NroPiezas);
        EXPECT_EQ(distintos, 0);
    } else {
        alCederEventos = [&](int32_t n) {
            if (n == j) {
                ASSERT_EQ(ModoOrdenar, VERDADERO);
                pila.assign(OrdenPiezas.begin(), OrdenPiezas.end());
                Clic(9);
            }
        };
        Clic(7);
    }
    EXPECT_EQ(PiezasColocadas, NroPiezas);
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_TRUE(PiezaEnSuSitio(k)) << k;
    }
    EXPECT_EQ(std::vector<int16_t>(OrdenPiezas.begin(), OrdenPiezas.end()), pila);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(PartidaValida, FALSO);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(VistoPulsado(7), 0);
    EXPECT_EQ(VistoPulsado(9), 0);
    // The solver finishes without a message, and the screen shows the clean
    // picture.
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}

INSTANTIATE_TEST_SUITE_P(Desde, ResolverQt, testing::Values(0, 1, 4));
