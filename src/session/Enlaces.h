// The joints between the floors of the game's rules.
#pragma once

// Fills the table of upward calls (core/Arriba.h) with the real routines of
// the board, the panels, the dialog, the history book and the saved game.
void EnlazaArriba();
