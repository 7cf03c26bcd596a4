// The grid of the puzzle and its difficulty.
#pragma once

// NroPiezas, AnchoPieza, AltoPieza, AnchoPuzzle and AltoPuzzle from
// PiezasPorLado, PiezasDobles and the size of Pic_Origin; then the
// difficulty.
void CalculaPiezas();

// Dificultad, in percent, from the grid, the cut and FactorPegado.
void CalculaDificultad();

// MargenX, MargenY, AnchoPiezaTotal and AltoPiezaTotal: what a piece may
// stick out of its cell. Only irregular pieces have margins.
void CalculaMargenes();
