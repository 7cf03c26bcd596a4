// The commands behind PulsaBoton, one routine each, and the press and
// release of their buttons. Only the dispatcher and its tests call these:
// everybody else goes through PulsaBoton, which ends the modes first.
#pragma once

#include "services/Mensajes.h"

#include <cstdint>

// BotonPulsado[boton] = pulsado, and the button drawn so on the
// always-visible panel (also when it is hidden or shown in the other one).
void MarcaBoton(int16_t boton, bool pulsado);

// The pointer of the whole screen: hourglass or default.
void PonEspera();
void QuitaEspera();

void AbreAyuda();             // 1
void PersonalizaAplicacion(); // 2
void MuestraOcultaModelo();   // 3
void BarajaDeNuevo();         // 4
void MuestraPiezasOcultas();  // 5
void ConmutaColocadas();      // 6
void ConmutaOrdenar();        // 7
void MuestraTutor();          // 8
void ConmutaResolver();       // 9
void AbreHistorico();         // 10
void PreguntaSalida();        // 11
// The question of command 11.
Mensaje MensajeSalida();
