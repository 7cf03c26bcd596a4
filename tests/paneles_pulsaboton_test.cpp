// PulsaBoton: the modes each command ends, what a finished puzzle blocks,
// a press from either panel, and the exit with its question. The long
// routines stopped from inside their own yields are the board's tests.
#include <functional>
#include <string>

#include "board/Render.h"
#include "core/Arriba.h"
#include "core/Cronometro.h"
#include "core/Plataforma.h"
#include "cutting/Corte.h"
#include "paneles_comun.h"
#include "panels/BotonesRaton.h"
#include "panels/Comandos.h"
#include "panels/Paneles.h"
#include "plataforma_prueba.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

class Pulsa : public Motor {
  protected:
    void SetUp() override {
        InstalaEscritorio();
        escritorio.respuesta = false;
        PreparaJuego(4, 0, 400, 300);
        PintaTiraPrueba(teselari.Pic_BmpBoton);
        Sonido = 2;
        PreparaBitmap();
        DibujaBotonesSiempre(); // every button drawn up
    }
    static void EnciendeModo(int16_t &modo, int16_t boton) {
        modo = VERDADERO;
        if (boton != 0) {
            BotonPulsado[boton] = VERDADERO;
            DibuBot(boton, teselari.Pic_BotonSiempre[boton]);
        }
    }
    static bool BotonArriba(int16_t b) {
        return BotonPulsado[b] == FALSO &&
               teselari.Pic_BotonSiempre[b].Point(3, 3) == CuerpoPrueba(b);
    }
};

enum Modo { COLOCADAS, ORDENAR, RESOLVER };

class TablaModos : public Pulsa, public ::testing::WithParamInterface<std::tuple<int16_t, Modo>> {};

// Each command ends the modes it excludes (0, no command, ends them all);
// 6 toggles its own view, and 7 and 9 toggle theirs: started, their
// routine runs with the mode on and the others off, and clears it at its
// end; pressed while on, it only stops. Where the pieces go is the board's.
TEST_P(TablaModos, CadaComandoTerminaLosModosQueExcluye) {
    const auto [b, m] = GetParam();
    if (m == COLOCADAS) {
        EnciendeModo(ModoColocadas, 0);
    } else if (m == ORDENAR) {
        EnciendeModo(ModoOrdenar, 7);
    } else {
        EnciendeModo(ModoResolver, 9);
    }
    struct Visto {
        int16_t colocadas, ordenar, resolver;
    };
    std::vector<Visto> vistos;
    escritorio.alDejarPasarEventos = [&vistos](int32_t) {
        vistos.push_back({ModoColocadas, ModoOrdenar, ModoResolver});
    };
    const std::vector<Pieza> antes = Piezas;

    PulsaBoton(b);

    const bool colocadas = b == 6 && m != COLOCADAS;
    EXPECT_EQ(ModoColocadas, colocadas ? VERDADERO : FALSO);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_TRUE(BotonArriba(7));
    EXPECT_TRUE(BotonArriba(9));
    EXPECT_TRUE(b == 0 || BotonArriba(b));
    EXPECT_EQ(teselari.MousePointer, 0);

    const bool arranca_ordenar = b == 7 && m != ORDENAR;
    const bool arranca_resolver = b == 9 && m != RESOLVER;
    if (arranca_ordenar || arranca_resolver) {
        ASSERT_FALSE(vistos.empty());
        for (const Visto &v : vistos) {
            EXPECT_EQ(v.colocadas, FALSO);
            EXPECT_EQ(v.ordenar, arranca_ordenar ? VERDADERO : FALSO);
            EXPECT_EQ(v.resolver, arranca_resolver ? VERDADERO : FALSO);
        }
    }
    // The second press of 7 or 9 only stops: no piece moves.
    if ((b == 7 && m == ORDENAR) || (b == 9 && m == RESOLVER)) {
        EXPECT_TRUE(vistos.empty());
        EXPECT_EQ(Piezas, antes);
    }
}

std::string NombreModo(const ::testing::TestParamInfo<std::tuple<int16_t, Modo>> &info) {
    static const char *const modos[] = {"Colocadas", "Ordenar", "Resolver"};
    const auto [boton, modo] = info.param;
    return "Boton" + std::to_string(boton) + "En" + modos[modo];
}

INSTANTIATE_TEST_SUITE_P(Comandos, TablaModos,
                         ::testing::Combine(::testing::Range<int16_t>(0, 11),
                                            ::testing::Values(COLOCADAS, ORDENAR, RESOLVER)),
                         NombreModo);

class Completo : public Pulsa, public ::testing::WithParamInterface<int> {};

// A finished puzzle: 5 to 9 change nothing, not even the look of their
// button; a running coloured view is still ended by any of them but 6.
TEST_P(Completo, BloqueaDelCincoAlNueve) {
    const int16_t b = static_cast<int16_t>(GetParam());
    PuzzleCompleto = VERDADERO;
    EnciendeModo(ModoColocadas, 0);
    const std::vector<Pieza> piezas = Piezas;
    const std::vector<int16_t> orden = OrdenPiezas;
    int dibujos = 0;
    teselari.Pic_BotonSiempre[b].AlCambiar = [&dibujos](const Rectangulo &) { ++dibujos; };
    PulsaBoton(b);
    EXPECT_EQ(dibujos, 0);
    EXPECT_EQ(Piezas, piezas);
    EXPECT_EQ(OrdenPiezas, orden);
    EXPECT_EQ(ModoColocadas, b == 6 ? VERDADERO : FALSO);
    EXPECT_EQ(escritorio.eventos, 0);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
}

INSTANTIATE_TEST_SUITE_P(Comandos, Completo, ::testing::Range(5, 10));

TEST_F(Pulsa, UnPuzzleCompletoNoBloqueaLosDemas) {
    PuzzleCompleto = VERDADERO;
    ModeloVisible = false;
    PulsaBoton(3);
    EXPECT_TRUE(ModeloVisible);
    SegundosCronometro = 50;
    PulsaBoton(4);
    EXPECT_EQ(SegundosCronometro, 0);
}

// A press on a button of either panel: the pop-up goes, the click is heard,
// the command runs; the board under the pop-up is repainted.
TEST_F(Pulsa, UnaPulsacionEnLosPanelesCierraElDerechoYSuena) {
    for (bool desde_derecho : {false, true}) {
        Sonido = 1;
        escritorio.sonidos.clear();
        BotonEnDerecho.fill(true);
        DibujaBotonesDerecho(10, 10);
        teselari.Pic_Trabajo.CajaLlena(0, 0, 30, 30, COLOR_NEGRO);
        const bool visible = ModeloVisible;
        if (desde_derecho) {
            Pic_BotonDerecho_MouseDown(3, 1, 0, 20, 20);
        } else {
            Pic_BotonSiempre_MouseDown(3, 2, 0, 20, 20);
        }
        EXPECT_FALSE(teselari.Pic_BotonesDerecho.Visible);
        EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>{1});
        EXPECT_NE(ModeloVisible, visible);
        EXPECT_EQ(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen), desde_derecho);
    }
}

// The exit asks first; refused, the clock goes on from where it stood,
// whatever it did before; accepted, the game is kept and the program ends.
TEST_F(Pulsa, SalirPreguntaYSoloConAceptarGuardaYTermina) {
    static int guardadas;
    guardadas = 0;
    struct Restaura {
        LlamadasArriba reales = Arriba();
        ~Restaura() { Arriba() = reales; }
    } restaura;
    Arriba().GuardaSesion = [] { ++guardadas; };
    const struct {
        bool en_marcha, acepta;
    } casos[] = {{true, false}, {false, false}, {true, true}};
    for (const auto &[en_marcha, acepta] : casos) {
        en_marcha ? ArrancaCronometro() : ParaCronometro();
        SegundosCronometro = 321;
        escritorio.respuesta = acepta;
        escritorio.mensajes.clear();
        PulsaBoton(11);
        ASSERT_EQ(escritorio.mensajes.size(), 1u);
        EXPECT_EQ(escritorio.mensajes[0].titulo, "SALIR DE TESELARI");
        EXPECT_EQ(escritorio.mensajes[0].texto, "¿Desea abandonar el programa?");
        EXPECT_EQ(SegundosCronometro, 321);
        EXPECT_EQ(RelojEnMarcha, acepta ? FALSO : VERDADERO);
        EXPECT_EQ(BotonArriba(11), !acepta);
        EXPECT_EQ(escritorio.terminas, acepta ? 1 : 0);
        EXPECT_EQ(guardadas, acepta ? 1 : 0);
    }
}

} // namespace
