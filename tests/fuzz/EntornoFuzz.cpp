#include "EntornoFuzz.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "raster/Superficie.h"
#include "session/Enlaces.h"

namespace {

// The loader reads any file that exists as the same 400 x 300 picture, so
// both a found and a lost picture can be reached from the file's text.
CargaDeImagen CargadorFijo(const std::string &fichero, Superficie &destino) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(fichero, ec)) {
        DejaImagenEnBlanco(destino);
        return {EstadoCarga::Inexistente, 320, 240};
    }
    constexpr int32_t ANCHO = 400, ALTO = 300;
    destino.CambiaTamano(ANCHO, ALTO);
    for (int32_t y = 0; y < ALTO; ++y) {
        uint32_t *fila = destino.Fila(y);
        for (int32_t x = 0; x < ANCHO; ++x) {
            fila[x] = ALFA_OPACO | uint32_t(x & 0xFF) << 16 | uint32_t(y & 0xFF) << 8 |
                      uint32_t((x ^ y) & 0xFF);
        }
    }
    return {EstadoCarga::Leida, ANCHO, ALTO};
}

void Marca(const std::string &ruta) {
    std::ofstream(ruta) << "picture\n";
}

void BorraCarpeta() {
    std::error_code ec;
    std::filesystem::remove_all(PreparaEntorno(), ec);
}

} // namespace

const std::string &PreparaEntorno() {
    static const std::string carpeta = [] {
        char plantilla[] = "/tmp/teselari-fuzz-XXXXXX";
        if (mkdtemp(plantilla) == nullptr) {
            abort();
        }
        const std::string c = plantilla;
        setenv("XDG_DATA_HOME", (c + "/datos").c_str(), 1);
        Marca(c + "/" + IMAGEN_SEMILLAS);
        Marca(c + "/" + FicherosPrograma[2]); // the first sample picture
        return c;
    }();
    // Registered once the name is built, so it is removed before the name.
    static const bool borrable = std::atexit(BorraCarpeta) == 0;
    (void)borrable;
    return carpeta;
}

void EstadoLimpio() {
    using namespace PuzzGbl;
    RestauraValoresIniciales();
    EnlazaArriba();
    AnchoPantalla = 1024;
    AltoPantalla = 768;
    VueltasPorSegundo = 0;
    teselari.Pic_BotonesSiempre.Move(1024 - 16 - 62, 0, 62, 667);
    DirectorioTrabajo = PreparaEntorno();
    ServiciosPlataforma s;
    s.DirectorioPrograma = DirectorioTrabajo;
    s.CargaImagen = CargadorFijo;
    InstalaPlataforma(s);
    // The picture of the seeds is named relative to the working folder.
    std::filesystem::current_path(DirectorioTrabajo);
}

bool OrdenEsPermutacion() {
    using namespace PuzzGbl;
    if (NroPiezas < 1 || OrdenPiezas.size() != static_cast<size_t>(NroPiezas) + 1) {
        return false;
    }
    std::vector<bool> visto(OrdenPiezas.size(), false);
    for (size_t i = 1; i < OrdenPiezas.size(); ++i) {
        const int16_t k = OrdenPiezas[i];
        if (k < 1 || k > NroPiezas || visto[k]) {
            return false;
        }
        visto[k] = true;
    }
    return true;
}
