// The board tool's work: the engine cuts a picture, the board is written out.
#pragma once

#include <QImage>
#include <ostream>
#include <vector>

#include "Opciones.h"

// Loads the picture and the options into the engine's state, as the game
// does before it cuts: the defaults, the settings, no delays, the picture in
// Pic_Origin and the always-visible panel at the right edge of the screen.
void CargaEnMotor(const Opciones &o, const QImage &imagen);

// The pieces whose masks are written: those asked for, each brought into
// 1..NroPiezas, or when none is asked a corner, an edge and an inner piece
// (for a double cut also the outer piece of the inner cell). Needs the grid
// computed (after PreparaBitmap).
std::vector<int> PiezasElegidas(const std::vector<int> &pedidas);

// The position in OrdenPiezas of the piece numbered k, or 0.
int PosicionDePieza(int k);

// Does the whole run: reads or makes the picture, cuts it and writes the
// pictures into o.Salida, one line per file on `informe`. Returns the exit
// status: 0, or 1 after a message on `errores`.
int EjecutaTablero(const Opciones &o, std::ostream &informe, std::ostream &errores);
