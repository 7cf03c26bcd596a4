// The program's folder and the working folder, the drives, and the loading
// of picture files.
#pragma once

#include <cstdint>
#include <string>

class Superficie;

// Chooses DirectorioTrabajo: the program's folder when it can be written,
// else the user's data folder for the game, with the sample files copied.
void CompruebaSiCD();

// What became of a picture file given to the loader.
enum class EstadoCarga : int8_t {
    Leida,       // decoded: the surface holds it at its own size
    EnBlanco,    // there, but it can't be decoded or is cut short
    Inexistente, // no such file, or it can't be opened
    Desmesurada, // states a size that no zoom brings into the limits: it is
                 // not decoded, and the size rules refuse it whatever zoom
                 // they compute
};

// The outcome of a load. Ancho and Alto are the W and H the size rules
// work with: the picture's own size when it was read (also when the surface
// holds it reduced), the size the file states when it is too large, else
// 320 x 240. Whenever the picture was not read, the surface is left a plain
// white 320 x 240.
struct CargaDeImagen {
    EstadoCarga Estado = EstadoCarga::Inexistente;
    int64_t Ancho = 320;
    int64_t Alto = 240;
    bool Leida() const { return Estado == EstadoCarga::Leida; }
};

// Loads a picture file into a surface (the platform installs its decoders):
// at the file's own size, or, for a picture too large to hold whole, at a
// reduced size in its proportions that still covers the largest picture any
// zoom makes of it. Callers scale the whole surface to the zoomed size of
// Ancho x Alto. Without the platform's loader every file is Inexistente.
CargaDeImagen CargaImagen(const std::string &fichero, Superficie &destino);

// The surface as the picture of a file that was not read: white 320 x 240.
void DejaImagenEnBlanco(Superficie &destino);

// The program's folder, where the sample pictures stand, as the platform
// gives it: without a closing "/" unless it is the root.
const std::string &DirectorioPrograma();

// The program's folder for an executable in `carpetaEjecutable`: the
// installed game's data folder, `datosInstalados` relative to the
// executable's folder ("../share/teselari"), when there is one; else the
// executable's own folder, as in the build tree.
std::string CarpetaDelPrograma(const std::string &carpetaEjecutable,
                               const std::string &datosInstalados);

// The user's data folder for the game, with a closing "/":
// $XDG_DATA_HOME/teselari/ or ~/.local/share/teselari/.
std::string DirectorioDatos();

// The "drive" of a folder: the mount point of the volume that holds it.
std::string UnidadDeCarpeta(const std::string &carpeta);

// Whether a drive is there: a volume mounted now at that point. "C:" from
// a file written on Windows, or a volume since unplugged, is not.
bool UnidadPresente(const std::string &unidad);

// The eleven files that go with the program, in the order they are copied:
// the initialisation and history files, then the sample pictures.
constexpr int NRO_FICHEROS_PROGRAMA = 11;
extern const char *const FicherosPrograma[NRO_FICHEROS_PROGRAMA];
