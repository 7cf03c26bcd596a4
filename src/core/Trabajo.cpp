// The working folder: the program's own when it can be written, else the
// user's data folder for the game.
#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"

using namespace PuzzGbl;
namespace fs = std::filesystem;

const char *const FicherosPrograma[NRO_FICHEROS_PROGRAMA] = {
    "TESEL32.INI",  "TESEL32.HIS", "123.BMP",      "FORMAS.BMP", "CAMPANA.JPG", "CASA.JPG",
    "CATEDRAL.JPG", "FUENTE.JPG",  "PALMERAS.JPG", "PUERTA.JPG", "TRANVIA.JPG"};

namespace {

std::string ConBarra(std::string carpeta) {
    if (carpeta.empty() || carpeta.back() != '/') {
        carpeta += '/';
    }
    return carpeta;
}

// The home folder: $HOME, else the password database's.
std::string CarpetaPersonal() {
    const char *home = std::getenv("HOME");
    if (home != nullptr && home[0] == '/') {
        return home;
    }
    const passwd *pw = getpwuid(getuid());
    return pw != nullptr && pw->pw_dir != nullptr ? pw->pw_dir : "/tmp";
}

// The test of the folder: "CSCD.WRK" is created in it and deleted at once.
bool SePuedeEscribir(const std::string &carpeta) {
    const std::string marca = ConBarra(carpeta) + "CSCD.WRK";
    std::FILE *f = std::fopen(marca.c_str(), "wb");
    if (f == nullptr) {
        return false;
    }
    std::fclose(f);
    std::remove(marca.c_str());
    return true;
}

// The files that go with the program, copied into a new working folder on
// its first run; a missing one is skipped and none is overwritten.
void CopiaFicherosPrograma(const std::string &origen, const std::string &destino) {
    for (const char *nombre : FicherosPrograma) {
        std::error_code ec;
        fs::copy_file(origen + nombre, destino + nombre, fs::copy_options::skip_existing, ec);
    }
}

} // namespace

const std::string &DirectorioPrograma() {
    return Plataforma().DirectorioPrograma;
}

std::string CarpetaDelPrograma(const std::string &carpetaEjecutable,
                               const std::string &datosInstalados) {
    if (datosInstalados.empty()) {
        return carpetaEjecutable;
    }
    const fs::path instalada = (fs::path(carpetaEjecutable) / datosInstalados).lexically_normal();
    std::error_code ec;
    return fs::is_directory(instalada, ec) ? instalada.string() : carpetaEjecutable;
}

std::string DirectorioDatos() {
    const char *xdg = std::getenv("XDG_DATA_HOME");
    // A relative XDG_DATA_HOME is not valid and is passed over.
    const std::string base =
        xdg != nullptr && xdg[0] == '/' ? std::string(xdg) : CarpetaPersonal() + "/.local/share";
    return ConBarra(base) + "teselari/";
}

std::string UnidadDeCarpeta(const std::string &carpeta) {
    std::string unidad = "/";
    std::ifstream montajes("/proc/self/mounts");
    std::string dispositivo, punto, resto;
    while (montajes >> dispositivo >> punto && std::getline(montajes, resto)) {
        const std::string conBarra = ConBarra(punto);
        if ((carpeta == punto || ConBarra(carpeta).rfind(conBarra, 0) == 0) &&
            punto.size() > unidad.size()) {
            unidad = punto;
        }
    }
    return unidad;
}

bool UnidadPresente(const std::string &unidad) {
    return !unidad.empty() && UnidadDeCarpeta(unidad) == unidad;
}

void CompruebaSiCD() {
    if (chdir(DirectorioTrabajo.c_str()) != 0) {
        // Not entered: the test below tells whether it can be used at all.
    }
    if (SePuedeEscribir(DirectorioTrabajo)) {
        return;
    }
    const std::string origen = ConBarra(DirectorioTrabajo);
    DirectorioTrabajo = DirectorioDatos();
    std::error_code ec;
    fs::create_directories(DirectorioTrabajo, ec);
    if (chdir(DirectorioTrabajo.c_str()) != 0) {
        // The fault comes to light when the files are read and written.
    }
    // The initialisation file found there means the game went on from the
    // copies on an earlier run: nothing is copied again.
    if (!std::ifstream(DirectorioTrabajo + "TESEL32.INI").is_open()) {
        CopiaFicherosPrograma(origen, DirectorioTrabajo);
    }
}
