// Writes the saved game of the end-to-end run: a picture of the folder cut
// into a small square grid, every piece at home but the one on top of the
// pile, which waits on the free board right of the puzzle.
//
//   teselari_partida_e2e CARPETA IMAGEN ANCHO_PANTALLA ALTO_PANTALLA
//
// Writes CARPETA/TESEL32.INI and prints one line "X Y XC YC": a point well
// inside the loose piece where it lies, and the same point of it at home, in
// the work area's pixels (the screen's, with the scroll bars at 0).
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/PuzzGbl.h"
#include "core/Sesion.h"
#include "core/SesionImagen.h"
#include "cutting/Corte.h"
#include "platform/qt/CargaImagenQt.h"

using namespace PuzzGbl;

namespace {

constexpr int16_t LADO = 4;
constexpr int16_t ZOOM = 60;

// The settings of the game, as a player would have chosen them; the clock
// hidden so that nothing on the board changes by itself.
void PonAjustes(const std::string &carpeta, const std::string &imagen) {
    FicheroImagen = std::filesystem::path(carpeta) / imagen;
    NombreImagen = imagen;
    UnidadImagen = UnidadDeCarpeta(carpeta);
    CarpetaImagen = carpeta;
    PiezasPorLado = LADO;
    TipoPieza = 0;
    PiezasDobles = 0;
    Zoom = ZOOM;
    FactorPegado = 50;
    ColorFondo = 3;
    Velocidad = 100;
    Cronometro = 2;
    Sonido = 2;
    Pistas = 1;
    PartidaValida = VERDADERO;
    PuzzleCompleto = FALSO;
    SegundosCronometro = 75;
    ImagenValida = VERDADERO;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "uso: %s CARPETA IMAGEN ANCHO_PANTALLA ALTO_PANTALLA\n", argv[0]);
        return 2;
    }
    const std::string carpeta = argv[1];
    RestauraValoresIniciales();
    AnchoPantalla = static_cast<int16_t>(std::atoi(argv[3]));
    AltoPantalla = static_cast<int16_t>(std::atoi(argv[4]));
    VueltasPorSegundo = 0;
    LlenaTablas();
    PonCargadorImagen(CargaImagenQt);
    PonAjustes(carpeta, argv[2]);
    if (!CargaImagen(FicheroImagen, teselari.Pic_W).Leida()) {
        std::fprintf(stderr, "no se puede leer %s\n", FicheroImagen.c_str());
        return 1;
    }
    PasaImagenAOrigen(static_cast<int32_t>(AnchoConZoom(Zoom)),
                      static_cast<int32_t>(AltoConZoom(Zoom)));

    // The cut with every piece at home, as a restore leaves it.
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    ColocaPiezasEnCasa();
    SesionRestaurando = FALSO;

    // The piece on top of the pile goes to the right of the puzzle, half a
    // cell clear of it, at mid height.
    Pieza &suelta = Piezas[OrdenPiezas[1]];
    int32_t derecha = 0;
    for (size_t k = 1; k < Piezas.size(); ++k) {
        derecha = std::max(derecha, Piezas[k].XCorrecta + AnchoPieza);
    }
    suelta.X = derecha + AnchoPieza / 2;
    suelta.Y = Piezas[1].YCorrecta + (AltoPieza * LADO) / 2 - AltoPieza / 2;

    DirectorioTrabajo = carpeta;
    GuardaSesion();
    // The middle of the piece's cell: opaque in every rectangular cut.
    const int32_t dx = AnchoPieza / 2, dy = AltoPieza / 2;
    std::printf("%d %d %d %d\n", suelta.X + dx, suelta.Y + dy, suelta.XCorrecta + dx,
                suelta.YCorrecta + dy);
    return 0;
}
