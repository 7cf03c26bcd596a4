// The board tool: its command line, the bridge between pictures and
// surfaces, the sample picture and a whole run.
#include <gtest/gtest.h>

#include <QColor>
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

std::optional<Opciones> Lee(std::vector<std::string> args, std::string *error = nullptr) {
    std::string e;
    auto o = LeeOpciones(args, e);
    if (error != nullptr) {
        *error = e;
    }
    return o;
}

// A folder of its own for each test and process, emptied first.
fs::path CarpetaDePrueba(const std::string &nombre) {
    const fs::path p = fs::temp_directory_path() /
                       ("teselari_tablero_test_" + std::to_string(::getpid()) + "_" + nombre);
    fs::remove_all(p);
    return p;
}

} // namespace

// --- the command line ---

TEST(OpcionesTablero, SinArgumentosDaLosValoresPorDefecto) {
    const auto o = Lee({});
    ASSERT_TRUE(o);
    EXPECT_TRUE(o->Imagen.empty());
    EXPECT_EQ(o->Lado, 6);
    EXPECT_EQ(o->Tipo, 1);
    EXPECT_EQ(o->Fondo, 3);
    EXPECT_EQ(o->AnchoPantalla, 1024);
    EXPECT_EQ(o->AltoPantalla, 768);
    EXPECT_TRUE(o->Piezas.empty());
    EXPECT_EQ(o->Salida, "salida");
    EXPECT_FALSE(o->Ayuda);
}

TEST(OpcionesTablero, LeeCadaOpcion) {
    const auto o = Lee({"--imagen", "foto.jpg", "--lado", "20", "--tipo", "5", "--fondo", "0",
                        "--pantalla", "1280x1024", "--piezas", "1,17,3", "--salida", "otra"});
    ASSERT_TRUE(o);
    EXPECT_EQ(o->Imagen, "foto.jpg");
    EXPECT_EQ(o->Lado, 20);
    EXPECT_EQ(o->Tipo, 5);
    EXPECT_EQ(o->Fondo, 0);
    EXPECT_EQ(o->AnchoPantalla, 1280);
    EXPECT_EQ(o->AltoPantalla, 1024);
    EXPECT_EQ(o->Piezas, (std::vector<int>{1, 17, 3}));
    EXPECT_EQ(o->Salida, "otra");
    const auto m = Lee({"--muestra", "--lado", "3", "--lado", "9"});
    ASSERT_TRUE(m);
    EXPECT_TRUE(m->Muestra);
    EXPECT_EQ(m->Lado, 9) << "the last of a repeated option wins";
    EXPECT_TRUE(Lee({"-h"})->Ayuda);
}

TEST(OpcionesTablero, RechazaValoresFueraDeRangoOMalEscritos) {
    const std::vector<std::vector<std::string>> malas = {
        {"--lado", "2"},           {"--lado", "21"},
        {"--lado", "6x"},          {"--lado", ""},
        {"--lado", "-3"},          {"--tipo", "6"},
        {"--tipo", "uno"},         {"--fondo", "-1"},
        {"--fondo", "6"},          {"--pantalla", "1024"},
        {"--pantalla", "x768"},    {"--pantalla", "1024x"},
        {"--pantalla", "100x100"}, {"--pantalla", "1024x7680"},
        {"--piezas", "0"},         {"--piezas", "1,,2"},
        {"--piezas", "1,a"},       {"--piezas", "3,"},
        {"--imagen", ""},          {"--salida", ""},
    };
    for (const auto &args : malas) {
        std::string error;
        EXPECT_FALSE(Lee(args, &error)) << args[0] << " " << args[1];
        EXPECT_NE(error.find(args[0]), std::string::npos) << "the reason names the option";
    }
}

TEST(OpcionesTablero, RechazaArgumentosDesconocidosIncompletosOContradictorios) {
    std::string error;
    EXPECT_FALSE(Lee({"--colores", "3"}, &error));
    EXPECT_NE(error.find("--colores"), std::string::npos);
    EXPECT_FALSE(Lee({"--muestra", "--lado"}, &error));
    EXPECT_NE(error.find("needs a value"), std::string::npos);
    EXPECT_FALSE(Lee({"--imagen", "a.png", "--muestra"}, &error));
    EXPECT_FALSE(Lee({"6"}, &error));
    EXPECT_FALSE(TextoUso().empty());
}

// --- pictures and surfaces ---

TEST(ImagenesTablero, LaSuperficieYLaImagenGuardanLosMismosPixeles) {
    QImage origen(5, 3, QImage::Format_ARGB32);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) {
            origen.setPixel(x, y, qRgba(40 * x, 80 * y, 7 * x + y, x == 0 ? 0 : 255));
        }
    }
    Superficie s;
    CopiaEnSuperficie(origen, s);
    ASSERT_EQ(s.Ancho(), 5);
    ASSERT_EQ(s.Alto(), 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) {
            const uint32_t p = s.Fila(y)[x];
            EXPECT_EQ(p >> 24, 0xFFu) << "stored opaque";
            EXPECT_EQ(p & 0xFFFFFFu, origen.pixel(x, y) & 0xFFFFFFu) << x << "," << y;
        }
    }
    // The game reads the picture's colours as its own colour words.
    EXPECT_EQ(s.Point(2, 1), RGB(80, 80, 15));

    const QImage vuelta = ImagenDeSuperficie(s);
    ASSERT_EQ(vuelta.size(), QSize(5, 3));
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(vuelta.pixel(x, y) & 0xFFFFFFu, origen.pixel(x, y) & 0xFFFFFFu);
        }
    }
    // A deep copy: the picture does not follow later drawing on the surface.
    s.PSet(0, 0, COLOR_BLANCO);
    EXPECT_EQ(vuelta.pixel(0, 0) & 0xFFFFFFu, 0u);
}

TEST(ImagenesTablero, EscribePngYSeLeeIgual) {
    const fs::path carpeta = CarpetaDePrueba("png");
    fs::create_directories(carpeta);
    Superficie s(7, 4, RGB(10, 20, 30));
    s.PSet(3, 2, RGB(250, 0, 5));
    std::string error;
    const std::string ruta = (carpeta / "s.png").string();
    ASSERT_TRUE(EscribePng(s, ruta, error)) << error;
    const auto leida = LeeImagen(ruta, error);
    ASSERT_TRUE(leida) << error;
    EXPECT_EQ(leida->size(), QSize(7, 4));
    EXPECT_EQ(QColor(leida->pixel(3, 2)), QColor(250, 0, 5));
    EXPECT_EQ(QColor(leida->pixel(0, 0)), QColor(10, 20, 30));

    EXPECT_FALSE(EscribePng(Superficie(), (carpeta / "vacia.png").string(), error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(fs::exists(carpeta / "vacia.png"));
    EXPECT_FALSE(EscribePng(s, (carpeta / "no" / "hay" / "carpeta.png").string(), error));
    fs::remove_all(carpeta);
}

TEST(ImagenesTablero, UnFicheroQueFaltaOQueNoEsImagenDaError) {
    const fs::path carpeta = CarpetaDePrueba("leer");
    fs::create_directories(carpeta);
    std::string error;
    EXPECT_FALSE(LeeImagen((carpeta / "no-existe.png").string(), error));
    EXPECT_NE(error.find("no-existe.png"), std::string::npos);
    {
        std::ofstream basura(carpeta / "basura.png");
        basura << "esto no es un PNG";
    }
    error.clear();
    EXPECT_FALSE(LeeImagen((carpeta / "basura.png").string(), error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(LeeImagen(carpeta.string(), error)) << "a folder is no picture";
    fs::remove_all(carpeta);
}

// --- the sample picture ---

TEST(MuestraTablero, EsSiempreLaMismaYDelTamanoPedido) {
    const QImage a = DibujaMuestra();
    EXPECT_EQ(a.size(), QSize(640, 480));
    EXPECT_EQ(a, DibujaMuestra());
    EXPECT_EQ(DibujaMuestra(320, 200).size(), QSize(320, 200));
}

TEST(MuestraTablero, TieneDetalleYColorEnCadaCelda) {
    // Every cell of a 6 x 6 grid must show a cut clearly: no cell is one flat
    // colour, and the whole picture has many colours.
    const QImage m = DibujaMuestra();
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

TEST(EjecucionTablero, EscribeTodasLasImagenesDeCadaCorte) {
    for (int tipo = 0; tipo <= 5; ++tipo) {
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
        const auto casa = LeeImagen((carpeta / "casa.png").string(), error);
        ASSERT_TRUE(casa) << error;
        EXPECT_EQ(casa->size(), QSize(teselari.Pic_Imagen.Ancho(), teselari.Pic_Imagen.Alto()));
        const auto cortes = LeeImagen((carpeta / "cortes.png").string(), error);
        ASSERT_TRUE(cortes) << error;
        EXPECT_EQ(cortes->size(), QSize(640, 480));
        const auto puzzle = LeeImagen((carpeta / "puzzle.png").string(), error);
        ASSERT_TRUE(puzzle) << error;
        EXPECT_EQ(puzzle->size(), QSize(AnchoPuzzle + 8, AltoPuzzle + 8));
        EXPECT_TRUE(fs::exists(carpeta / "barajado.png"));

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
    EXPECT_EQ(PosicionDePieza(7), 7) << "at home the order is the identity";
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
