// Writes the saved game of the end-to-end run: a picture of the folder cut
// into a small square grid, every piece at home but the one on top of the
// pile, which waits on the free board right of the puzzle.
//
//   teselari_partida_e2e CARPETA IMAGEN ANCHO_PANTALLA ALTO_PANTALLA [REGISTROS]
//
// Writes CARPETA/TESEL32.INI and CARPETA/TESEL32.HIS, the latter with
// REGISTROS solved puzzles of other days (none by default: an empty history,
// so the start shows no message), and prints one line "X Y XC YC": a point
// well inside the loose piece where it lies, and the same point of it at
// home, in the work area's pixels (the screen's, with the scroll bars at 0).
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "history/CamposHistorico.h"
#include "qt/CargaImagenQt.h"
#include "session/Sesion.h"
#include "session/SesionImagen.h"

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
    NombreJugador = CadenaFija("Ana", 9);
}

// Puzzles solved on other days by other players, of other pictures.
bool EscribeHistorico(const std::string &carpeta, int registros) {
    static const char *const nombres[] = {"Pedro", "ana", "Lucía", "PEDRO"};
    static const char *const imagenes[] = {"CASA.JPG", "FUENTE.JPG", "TRANVIA.JPG"};
    std::string texto;
    for (int i = 1; i <= registros; ++i) {
        RegistroHistorico r;
        char fecha[16], hora[16];
        std::snprintf(fecha, sizeof fecha, "%02d/03/2025", i % 9 + 1);
        std::snprintf(hora, sizeof hora, "%02d:15:%02d", 10 + i % 12, i % 10);
        r.Fecha = fecha;
        r.Hora = hora;
        r.Imagen = CadenaFija(imagenes[i % 3], 12);
        r.PiezasPorLado = static_cast<int16_t>(4 + i % 5);
        r.TipoPieza = static_cast<int16_t>(i % 6);
        r.NroPiezas =
            static_cast<int16_t>(r.PiezasPorLado * r.PiezasPorLado * (r.TipoPieza > 1 ? 2 : 1));
        r.AnchoPieza = static_cast<int16_t>(640 / r.PiezasPorLado);
        r.AltoPieza = static_cast<int16_t>(480 / r.PiezasPorLado);
        r.AnchoPuzzle = static_cast<int16_t>(r.AnchoPieza * r.PiezasPorLado);
        r.AltoPuzzle = static_cast<int16_t>(r.AltoPieza * r.PiezasPorLado);
        r.Dificultad = 20.0f + static_cast<float>(i * 7 % 60) + 0.125f;
        r.Segundos = 300 + i * 97;
        r.FactorPegado = static_cast<int16_t>(25 + 5 * (i % 6));
        r.Nombre = CadenaFija(nombres[i % 4], 9);
        texto += LineaHistorico(r);
    }
    std::FILE *f = std::fopen((carpeta + "/TESEL32.HIS").c_str(), "wb");
    if (f == nullptr) {
        return false;
    }
    const bool bien = std::fwrite(texto.data(), 1, texto.size(), f) == texto.size();
    return std::fclose(f) == 0 && bien;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    if (argc != 5 && argc != 6) {
        std::fprintf(stderr, "uso: %s CARPETA IMAGEN ANCHO_PANTALLA ALTO_PANTALLA [REGISTROS]\n",
                     argv[0]);
        return 2;
    }
    const std::string carpeta = argv[1];
    RestauraValoresIniciales();
    AnchoPantalla = static_cast<int16_t>(std::atoi(argv[3]));
    AltoPantalla = static_cast<int16_t>(std::atoi(argv[4]));
    VueltasPorSegundo = 0;
    LlenaTablas();
    ServiciosPlataforma servicios;
    servicios.CargaImagen = CargaImagenQt;
    InstalaPlataforma(servicios);
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
    if (!EscribeHistorico(carpeta, argc == 6 ? std::atoi(argv[5]) : 0)) {
        std::fprintf(stderr, "no se puede escribir TESEL32.HIS\n");
        return 1;
    }
    // The middle of the piece's cell: opaque in every rectangular cut.
    const int32_t dx = AnchoPieza / 2, dy = AltoPieza / 2;
    std::printf("%d %d %d %d\n", suelta.X + dx, suelta.Y + dy, suelta.XCorrecta + dx,
                suelta.YCorrecta + dy);
    return 0;
}
