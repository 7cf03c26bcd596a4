// Command 11: the question, then the game is kept and the program ends.
#include "core/Arriba.h"
#include "core/Cronometro.h"
#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "panels/Ordenes.h"
#include "services/Mensajes.h"

using namespace PuzzGbl;

void PreguntaSalida() {
    PonEspera();
    MarcaBoton(11, true);
    ParaCronometro();
    QuitaEspera();
    MuestraMensaje(MensajeSalida());
    if (RespuestaMensaje != VERDADERO) {
        // The game goes on, the clock from where it stood.
        ArrancaCronometro();
        MarcaBoton(11, false);
        return;
    }
    Llama(Arriba().GuardaSesion);
    if (Plataforma().Termina != nullptr) {
        Plataforma().Termina();
    }
}

Mensaje MensajeSalida() {
    return {"SALIR DE TESELARI", "¿Desea abandonar el programa?", 1, 2};
}
