// The setting shared by the fuzz target of the saved game and the generator
// of its seeds: a working folder of its own, a picture loader that gives a
// small fixed picture, and a fresh game state before every reading.
#pragma once

#include <cstdint>
#include <string>

// The picture the seeds name, relative to the working folder.
constexpr const char *IMAGEN_SEMILLAS = "foto.img";

// Creates (once) a temporary folder that is both the program's folder and
// the working folder, holding the marker files of the picture and of the
// first sample, and installs the loader. Returns the folder.
const std::string &PreparaEntorno();

// A clean state on a 1024 x 768 screen, no delays, the panel in place, the
// working folder set and entered.
void EstadoLimpio();

// Whether OrdenPiezas holds each of 1..NroPiezas exactly once.
bool OrdenEsPermutacion();
