// Writes the seed corpus of the saved-game fuzz target: a few dealt games
// saved by GuardaSesion, one file per game, into the folder given.
#include <cstdio>
#include <filesystem>
#include <string>

#include "EntornoFuzz.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "session/Sesion.h"
#include "session/SesionImagen.h"

namespace {

struct Semilla {
    int16_t lado, tipo, zoom;
    bool colocadas; // a finished-looking game: every piece at home
};

// Every cut, small and large grids, a zoom other than 100.
constexpr Semilla SEMILLAS[] = {
    {3, 0, 100, false}, {4, 1, 100, false}, {5, 2, 100, true},
    {6, 3, 150, false}, {8, 4, 100, false}, {10, 5, 100, false},
};

bool EscribeSemilla(const Semilla &s, const std::string &destino) {
    using namespace PuzzGbl;
    EstadoLimpio();
    PiezasPorLado = s.lado;
    TipoPieza = s.tipo;
    PiezasDobles = s.tipo >= 2 ? 1 : 0;
    FicheroImagen = IMAGEN_SEMILLAS;
    NombreImagen = IMAGEN_SEMILLAS;
    Zoom = s.zoom;
    ImagenValida = VERDADERO;
    PartidaValida = VERDADERO;
    SegundosCronometro = 125;
    if (!CargaImagen(FicheroImagen, teselari.Pic_W).Leida()) {
        return false;
    }
    PasaImagenAOrigen(static_cast<int32_t>(AnchoConZoom(s.zoom)),
                      static_cast<int32_t>(AltoConZoom(s.zoom)));
    SesionRestaurando = s.colocadas ? VERDADERO : FALSO;
    PreparaBitmap();
    if (s.colocadas) {
        ColocaPiezasEnCasa();
    }
    SesionRestaurando = FALSO;
    GuardaSesion();
    std::error_code ec;
    std::filesystem::copy_file(DirectorioTrabajo + "/TESEL32.INI", destino,
                               std::filesystem::copy_options::overwrite_existing, ec);
    return !ec;
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 2) {
        std::fprintf(stderr, "use: %s FOLDER\n", argv[0]);
        return 2;
    }
    // Absolute: saving a game enters the working folder.
    const std::string carpeta = std::filesystem::absolute(argv[1]).string();
    std::filesystem::create_directories(carpeta);
    int n = 0;
    for (const Semilla &s : SEMILLAS) {
        const std::string nombre =
            carpeta + "/partida_" + std::to_string(s.lado) + "_" + std::to_string(s.tipo) + ".ini";
        if (!EscribeSemilla(s, nombre)) {
            std::fprintf(stderr, "could not write %s\n", nombre.c_str());
            return 1;
        }
        ++n;
    }
    std::printf("%d seeds written in %s\n", n, carpeta.c_str());
    return 0;
}
