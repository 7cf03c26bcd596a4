// Reading the four blocks of TESEL32.INI into the game.
//
// Every field is read and checked before it touches the game. A field that
// cannot be read (missing, not of its kind, too large for its variable) is
// a read error, as it has always been: its variable keeps its value and the
// rest of that line is passed over. A field that reads well but can hold no
// game (a setting out of its range, a flag that is neither -1 nor 0) keeps
// its variable too and marks the file damaged, so that the picture is dealt
// afresh instead of restoring positions that may not fit it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct LecturaSesion {
    std::vector<std::string> lineas; // still in Windows-1252
    size_t siguiente = 0;            // the next line to read
    bool errorLectura = false;
    bool danado = false;
};

// Blocks 1 to 3: settings, buttons, the game's picture and grid.
void LeeAjustes(LecturaSesion &l);

// Block 4, NroPiezas lines, checked whole against the board just prepared:
// homes as the grid gives them, every piece at least partly on the work
// area, OrdenPiezas a permutation. Only then are Piezas and OrdenPiezas
// filled; returns false, touching nothing, when the block can't be used.
// Piezas must hold the homes already (ColocaPiezasEnCasa).
bool LeePiezas(LecturaSesion &l);
