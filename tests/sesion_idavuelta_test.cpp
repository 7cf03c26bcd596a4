// A saved game read back: the same game, on the same board.
#include "sesion_comun.h"
#include "session/SesionTexto.h"

using namespace PuzzGbl;
using namespace sesion_prueba;

namespace {

class SesionIdaYVuelta : public Sesion,
                         public ::testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(SesionIdaYVuelta, LaPartidaGuardadaVuelveIgual) {
    const auto [lado, tipo] = GetParam();
    // A game under way: settings away from the defaults, a piece placed, a
    // typed name, the clock running.
    ColorFondo = 1;
    JuegaPartida(static_cast<int16_t>(lado), static_cast<int16_t>(tipo));
    FactorPegado = 65;
    Cronometro = 1;
    Velocidad = 20;
    Sonido = 2;
    Pistas = 2;
    ModeloVisible = true;
    BotonEnDerecho[7] = true;
    BotonEnSiempre[2] = false;
    NombreJugador = "Begoña   ";
    SegundosCronometro = 4321;
    PartidaValida = FALSO;
    Piezas[OrdenPiezas[1]].X = Piezas[OrdenPiezas[1]].XCorrecta;
    Piezas[OrdenPiezas[1]].Y = Piezas[OrdenPiezas[1]].YCorrecta;
    const std::string guardada = TextoSesion(); // everything the file keeps
    GuardaSesion();

    PreparaPantalla();
    DirectorioTrabajo = programa;
    RestauraSesion();
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(TextoSesion(), guardada);
    EXPECT_TRUE(PartidaCoherente());
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(SesionRestaurando, FALSO);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 480);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), 360);
}

INSTANTIATE_TEST_SUITE_P(Cortes, SesionIdaYVuelta,
                         ::testing::Values(std::make_tuple(3, 0), std::make_tuple(5, 1),
                                           std::make_tuple(4, 2), std::make_tuple(3, 5)));

} // namespace
