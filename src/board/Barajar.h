// Dealing the game.
#pragma once

// Clears the board, draws its frame, mixes the pile, throws every piece to a
// random spot and shows the pieces falling one by one. With
// SesionRestaurando set it keeps the saved order and places and only paints.
void Barajar();
