// The board tool: its command line, the bridge between pictures and
// surfaces, the sample picture and a whole run. The run on the sample from
// the command line is the test tablero_muestra.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <unistd.h>

#include "Imagenes.h"
#include "Muestra.h"
#include "Opciones.h"
#include "Tablero.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"

namespace fs = std::filesystem;

namespace {

// A folder of its own for each test and process, emptied first.
fs::path CarpetaDePrueba(const std::string &nombre) {
    const fs::path p = fs::temp_directory_path() /
                       ("teselari_tablero_test_" + std::to_string(::getpid()) + "_" + nombre);
    fs::remove_all(p);
    return p;
}

} // namespace

// --- the command line ---

TEST(OpcionesTablero, LeeCadaOpcion) {
    std::string error;
    const auto o = LeeOpciones({"--imagen", "foto.jpg", "--lado", "20", "--tipo", "5", "--fondo",
                                "0", "--pantalla", "1280x1024", "--piezas", "1,17,3", "--salida",
                                "otra", "--lado", "19"},
                               error);
    ASSERT_TRUE(o) << error;
    EXPECT_EQ(o->Imagen, "foto.jpg");
    EXPECT_EQ(o->Lado, 19) << "the last of a repeated option wins";
    EXPECT_EQ(o->Tipo, 5);
    EXPECT_EQ(o->Fondo, 0);
    EXPECT_EQ(o->AnchoPantalla, 1280);
    EXPECT_EQ(o->AltoPantalla, 1024);
    EXPECT_EQ(o->Piezas, (std::vector<int>{1, 17, 3}));
    EXPECT_EQ(o->Salida, "otra");
    EXPECT_TRUE(LeeOpciones({"--muestra", "-h"}, error)->Ayuda);
}

// Each bad line is refused with a reason that names what is wrong.
TEST(OpcionesTablero, RechazaLoFueraDeRangoMalEscritoOContradictorio) {
    const struct {
        std::vector<std::string> args;
        const char *razon;
    } malas[] = {
        {{"--lado", "2"}, "--lado"},
        {{"--lado", "6x"}, "--lado"},
        {{"--tipo", "6"}, "--tipo"},
        {{"--fondo", "-1"}, "--fondo"},
        {{"--pantalla", "1024"}, "--pantalla"},
        {{"--piezas", "3,"}, "--piezas"},
        {{"--imagen", ""}, "--imagen"},
        {{"--colores", "3"}, "--colores"},
        {{"--muestra", "--lado"}, "needs a value"},
        {{"--imagen", "a.png", "--muestra"}, "not both"},
    };
    for (const auto &m : malas) {
        std::string error;
        EXPECT_FALSE(LeeOpciones(m.args, error)) << m.args[0] << " " << m.args[1];
        EXPECT_NE(error.find(m.razon), std::string::npos) << error;
    }
}

// --- the sample picture ---

TEST(MuestraTablero, TieneDetalleYColorEnCadaCelda) {
    // Every cell of a 6 x 6 grid must show a cut clearly: no cell is one flat
    // colour, and the whole picture has many colours.
    const QImage m = DibujaMuestra();
    ASSERT_EQ(m.size(), QSize(640, 480));
    std::set<QRgb> todos;
    const int n = 6, w = m.width() / n, h = m.height() / n;
    for (int fila = 0; fila < n; ++fila) {
        for (int col = 0; col < n; ++col) {
            std::set<QRgb> celda;
            for (int y = fila * h; y < (fila + 1) * h; ++y) {
                for (int x = col * w; x < (col + 1) * w; ++x) {
                    celda.insert(m.pixel(x, y));
                    todos.insert(m.pixel(x, y));
                }
            }
            EXPECT_GT(celda.size(), 20u) << "cell " << fila << "," << col;
        }
    }
    EXPECT_GT(todos.size(), 2000u);
}

// --- a whole run ---

// A rectangle cut (no mask drawn) and a double one (inner pieces).
TEST(EjecucionTablero, EscribeTodasLasImagenesDeCadaCorte) {
    for (int tipo : {0, 2}) {
        SCOPED_TRACE("tipo " + std::to_string(tipo));
        const fs::path carpeta = CarpetaDePrueba("tipo" + std::to_string(tipo));
        Opciones o;
        o.Lado = 3;
        o.Tipo = tipo;
        o.Salida = carpeta.string();
        std::ostringstream informe, errores;
        ASSERT_EQ(EjecutaTablero(o, informe, errores), 0) << errores.str();
        EXPECT_TRUE(errores.str().empty());

        using namespace PuzzGbl;
        std::string error;
        const auto puzzle = LeeImagen((carpeta / "puzzle.png").string(), error);
        ASSERT_TRUE(puzzle) << error;
        EXPECT_EQ(puzzle->size(), QSize(AnchoPuzzle + 8, AltoPuzzle + 8));
        const std::vector<int> piezas = PiezasElegidas({});
        for (const int k : piezas) {
            const auto mascara =
                LeeImagen((carpeta / ("mascara_" + std::to_string(k) + ".png")).string(), error);
            const auto pieza =
                LeeImagen((carpeta / ("pieza_" + std::to_string(k) + ".png")).string(), error);
            ASSERT_TRUE(mascara && pieza) << "piece " << k << ": " << error;
            ASSERT_EQ(mascara->size(), pieza->size());
            int negros = 0;
            for (int y = 0; y < mascara->height(); ++y) {
                for (int x = 0; x < mascara->width(); ++x) {
                    const QRgb m = mascara->pixel(x, y) & 0xFFFFFFu;
                    ASSERT_TRUE(m == 0 || m == 0xFFFFFFu) << "a mask is black and white";
                    negros += m == 0;
                    if (m != 0) {
                        ASSERT_EQ(pieza->pixel(x, y) & 0xFFFFFFu, 0u)
                            << "the image is black outside its piece";
                    }
                }
            }
            EXPECT_GT(negros, mascara->width() * mascara->height() / 10) << "piece " << k;
        }
        const auto original = LeeImagen((carpeta / "imagen.png").string(), error);
        ASSERT_TRUE(original) << error;
        EXPECT_EQ(*original, DibujaMuestra().convertToFormat(original->format()));
        // One line per file on the report: the picture, four boards and two
        // per piece.
        const std::string texto = informe.str();
        EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'),
                  static_cast<long>(5 + 2 * piezas.size()));
        fs::remove_all(carpeta);
    }
}

TEST(EjecucionTablero, EligeEsquinaBordeEInteriorYRecortaLasPedidas) {
    Opciones o;
    o.Lado = 5;
    o.Tipo = 2;
    CargaEnMotor(o, DibujaMuestra());
    PuzzGbl::SesionRestaurando = VERDADERO;
    PreparaBitmap();
    ColocaPiezasEnCasa();
    ASSERT_EQ(PuzzGbl::NroPiezas, 50);
    // Piece 1 is the bottom right corner, 23 the middle of the top edge, 13
    // the centre cell and 38 the other piece of the centre cell.
    EXPECT_EQ(PiezasElegidas({}), (std::vector<int>{1, 23, 13, 38}));
    const auto &p = PuzzGbl::Piezas;
    EXPECT_EQ(p[1].XCorrecta, 4 * PuzzGbl::AnchoPieza);
    EXPECT_EQ(p[1].YCorrecta, 4 * PuzzGbl::AltoPieza);
    EXPECT_EQ(p[23].YCorrecta, 0);
    EXPECT_EQ(p[13].XCorrecta, p[38].XCorrecta);
    EXPECT_EQ(p[13].YCorrecta, p[38].YCorrecta);
    EXPECT_EQ(PiezasElegidas({0, 7, 7, 999}), (std::vector<int>{1, 7, 50}));
    EXPECT_EQ(PosicionDePieza(51), 0);
}

TEST(EjecucionTablero, FallaConMensajeSinRomperse) {
    const fs::path carpeta = CarpetaDePrueba("fallos");
    fs::create_directories(carpeta);
    std::ostringstream informe, errores;
    Opciones o;
    o.Salida = (carpeta / "salida").string();

    o.Imagen = (carpeta / "no-existe.png").string();
    EXPECT_EQ(EjecutaTablero(o, informe, errores), 1);
    EXPECT_NE(errores.str().find("no-existe.png"), std::string::npos);

    // A file that is no picture.
    o.Imagen = (carpeta / "basura.png").string();
    std::ofstream(o.Imagen) << "esto no es un PNG";
    errores.str("");
    EXPECT_EQ(EjecutaTablero(o, informe, errores), 1);
    EXPECT_NE(errores.str().find("cannot read"), std::string::npos);

    // Too small for the grid asked.
    o.Imagen = (carpeta / "diminuta.png").string();
    ASSERT_TRUE(DibujaMuestra(40, 40).save(QString::fromStdString(o.Imagen)));
    errores.str("");
    EXPECT_EQ(EjecutaTablero(o, informe, errores), 1);
    EXPECT_NE(errores.str().find("too small"), std::string::npos);

    // The output folder stands where a file is.
    o.Imagen.clear();
    o.Salida = (carpeta / "fichero").string();
    std::ofstream(o.Salida) << "x";
    errores.str("");
    EXPECT_EQ(EjecutaTablero(o, informe, errores), 1);
    EXPECT_NE(errores.str().find("folder"), std::string::npos);
    EXPECT_TRUE(informe.str().empty()) << "nothing was written";
    fs::remove_all(carpeta);
}
