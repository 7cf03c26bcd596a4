// The moves the game makes by itself, animated and interruptible.
#pragma once

// Lays the pieces out in rings around the board (command 7).
void OrdenarPiezas();

// Carries every misplaced piece home (command 9).
void ResuelvePuzzle();
