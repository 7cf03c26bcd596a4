// The coloured view: placed pieces green, misplaced ones red (command 6).
#pragma once

// Repaints every piece, in its own pixels or in the colours, according to
// ModoColocadas.
void MostrarPiezasBienoMal();
