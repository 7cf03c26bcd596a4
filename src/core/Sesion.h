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

// The program's folder, where the sample pictures stand: the platform sets
// it to the executable's folder at start. Kept without a closing "/" unless
// it is the root.
void PonDirectorioPrograma(const std::string &carpeta);
const std::string &DirectorioPrograma();

// The user's data folder for the game, with a closing "/":
// $XDG_DATA_HOME/teselari/ or ~/.local/share/teselari/.
std::string DirectorioDatos();

// The "drive" of a folder: the mount point of the volume that holds it.
std::string UnidadDeCarpeta(const std::string &carpeta);

// The eleven files that go with the program, in the order they are copied:
// the initialisation and history files, then the sample pictures.
constexpr int NRO_FICHEROS_PROGRAMA = 11;
extern const char *const FicherosPrograma[NRO_FICHEROS_PROGRAMA];
