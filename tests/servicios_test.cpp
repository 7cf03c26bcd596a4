// The services the engine asks of the desktop: the message, the sounds and
// the re-entry point, through the hooks the platform fills.
#include <vector>

#include "core/Plataforma.h"
#include "motor_comun.h"
#include "plataforma_prueba.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

std::vector<std::string> titulos;
std::vector<int16_t> clips;
int eventos = 0;
bool respuesta = false;

bool MensajeDePrueba(const std::string &titulo, const std::string &) {
    titulos.push_back(titulo);
    return respuesta;
}
void SonidoDePrueba(int16_t clip) {
    clips.push_back(clip);
}
void EventosDePrueba() {
    ++eventos;
}

class Servicios : public Motor {
  protected:
    void SetUp() override {
        titulos.clear();
        clips.clear();
        eventos = 0;
        PonEscritorio({MensajeDePrueba, SonidoDePrueba, EventosDePrueba});
    }
    void TearDown() override {
        PonEscritorio({});
        Motor::TearDown();
    }
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
        respuesta = c.respuesta;
        RespuestaMensaje = c.antes;
        MuestraMensaje("SALIR DE TESELARI", "¿Desea abandonar el programa?", 3, c.botones);
        EXPECT_EQ(RespuestaMensaje, c.despues);
        EXPECT_EQ(MensajeLineas, 3);
        EXPECT_EQ(MensajeBotones, c.botones);
    }
    EXPECT_EQ(titulos.size(), 4u);
    // With no dialog installed, any message closes as if by a key: "Aceptar".
    PonEscritorio({});
    MuestraMensaje("TESELARI", "x", 1, 2);
    EXPECT_EQ(RespuestaMensaje, VERDADERO);
}

TEST_F(Servicios, SinSonidoNoSuenaNiDejaPasarEventos) {
    Sonido = 1;
    ReproduceSonido(5);
    ReproduceSonido(13); // no such clip: silence, but still a re-entry point
    EXPECT_EQ(clips, std::vector<int16_t>{5});
    EXPECT_EQ(eventos, 2);
    Sonido = 2;
    ReproduceSonido(5);
    EXPECT_EQ(clips.size(), 1u);
    EXPECT_EQ(eventos, 2);
    PermiteEventos();
    EXPECT_EQ(eventos, 3);
}
