// The two delays that give the game its pace, and the calibration.
//
// Both follow Velocidad: at 100 they are empty, at 0 twice as long as at the
// default 50. Both are busy waits on the one thread: no event is served
// while they run.
#pragma once

#include <cstdint>

// Counts the passes of a loop that reads the clock during one second into
// VueltasPorSegundo. Ends after one second also across midnight.
void CalibraVelocidad();

// The paced delay of moving pieces: each of `veces` is worth
// ((100 - Velocidad) / 50) x (VueltasPorSegundo / 3) passes of a counting
// loop, a pass being VUELTAS_POR_PASADA times lighter than one of the
// calibration. So its length derives from the calibration alone and is the
// same on every machine: about 0.75 ms per unit at Velocidad 50.
void EsperaVueltas(int32_t veces);

// The delay of the effects: ((100 - Velocidad) / 100) x (centesimas / 100)
// seconds by the clock.
void EsperaTiempo(int32_t centesimas);

// How many passes of the counting loop one pass of the calibration is worth.
constexpr double VUELTAS_POR_PASADA = 444.4;

// The length in seconds that EsperaVueltas(veces) waits now.
double DuracionVueltas(int32_t veces);
