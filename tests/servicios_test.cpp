// The services the engine asks of the desktop: the message, the sounds and
// the re-entry point, through the hooks the platform fills.
#include <vector>

#include "core/Plataforma.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

class Servicios : public Motor {
  protected:
    void SetUp() override { InstalaEscritorio(); }
};

} // namespace

TEST_F(Servicios, ElMensajeDejaLaRespuestaYSusMedidas) {
    // The buttons, the answer before, the player's, the answer after: one
    // button leaves the answer as it was; two buttons set it.
    const int16_t casos[][4] = {{2, FALSO, 1, VERDADERO},
                                {2, VERDADERO, 0, FALSO},
                                {1, VERDADERO, 0, VERDADERO},
                                {1, FALSO, 1, FALSO}};
    for (const auto &[botones, antes, jugador, despues] : casos) {
        escritorio.respuesta = jugador != 0;
        RespuestaMensaje = antes;
        MuestraMensaje("SALIR DE TESELARI", "¿Desea abandonar el programa?", 3, botones);
        EXPECT_EQ(RespuestaMensaje, despues);
        EXPECT_EQ(MensajeLineas, 3);
        EXPECT_EQ(MensajeBotones, botones);
    }
    EXPECT_EQ(escritorio.mensajes.size(), 4u);
    // With no dialog installed, any message closes as if by a key: "Aceptar".
    PonEscritorio({});
    MuestraMensaje("TESELARI", "x", 1, 2);
    EXPECT_EQ(RespuestaMensaje, VERDADERO);
}

TEST_F(Servicios, SinSonidoNoSuenaNiDejaPasarEventos) {
    Sonido = 1;
    ReproduceSonido(5);
    ReproduceSonido(13); // no such clip: silence, but still a re-entry point
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>{5});
    EXPECT_EQ(escritorio.eventos, 2);
    Sonido = 2;
    ReproduceSonido(5);
    EXPECT_EQ(escritorio.sonidos.size(), 1u);
    EXPECT_EQ(escritorio.eventos, 2);
    PermiteEventos();
    EXPECT_EQ(escritorio.eventos, 3);
}
