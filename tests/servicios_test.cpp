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
    struct Caso {
        int16_t botones;
        bool respuesta;
        int16_t antes, despues;
    };
    // One button leaves the answer as it was; two buttons set it.
    const Caso casos[] = {{2, true, FALSO, VERDADERO},
                          {2, false, VERDADERO, FALSO},
                          {1, false, VERDADERO, VERDADERO},
                          {1, true, FALSO, FALSO}};
    for (const Caso &c : casos) {
        escritorio.respuesta = c.respuesta;
        RespuestaMensaje = c.antes;
        MuestraMensaje("SALIR DE TESELARI", "¿Desea abandonar el programa?", 3, c.botones);
        EXPECT_EQ(RespuestaMensaje, c.despues);
        EXPECT_EQ(MensajeLineas, 3);
        EXPECT_EQ(MensajeBotones, c.botones);
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
