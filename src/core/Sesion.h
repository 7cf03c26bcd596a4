// The game kept between runs (TESEL32.INI) and the working folder.
#pragma once

#include <string>

class Superficie;

// Writes TESEL32.INI in DirectorioTrabajo: settings, buttons, the game.
void GuardaSesion();

// Reads TESEL32.INI and brings the game back exactly, or leads into the
// customisation dialog when there is no usable file or picture.
void RestauraSesion();

// Chooses DirectorioTrabajo: the program's folder when it can be written,
// else the user's data folder for the game, with the sample files copied.
void CompruebaSiCD();

// Loads a picture file into a surface at the file's own size (the platform
// installs its decoders). Returns false when the file cannot be read.
using CargadorImagen = bool (*)(const std::string &fichero, Superficie &destino);
void PonCargadorImagen(CargadorImagen c);
bool CargaImagen(const std::string &fichero, Superficie &destino);
