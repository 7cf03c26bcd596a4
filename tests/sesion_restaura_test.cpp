// Reading the saved game at start: the ways without a file, with a picture
// that is gone or does not fit, and the first start.
#include <filesystem>

#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;
namespace fs = std::filesystem;

namespace {

const char TITULO_ERROR[] = "Error leyendo fichero de datos iniciales";
const char TEXTO_53[] =
    "No se encuentra el fichero de inicialización con los datos de la última "
    "sesión. Cargue desde el disco una imagen que sirva de fondo para el puzzle.";

// The settings of a first run, whatever stood before.
void EsperaAjustesDePrimeraVez() {
    EXPECT_EQ(FactorPegado, 50);
    EXPECT_EQ(ColorFondo, 3);
    EXPECT_EQ(Velocidad, 50);
    EXPECT_EQ(Cronometro, 2);
    EXPECT_EQ(Sonido, 1);
    EXPECT_EQ(Pistas, 1);
    EXPECT_EQ(PiezasPorLado, 8);
    EXPECT_EQ(TipoPieza, 1);
    EXPECT_EQ(PiezasDobles, 0);
    EXPECT_EQ(Zoom, 100);
    for (int i = 1; i <= 11; ++i) {
        EXPECT_TRUE(BotonEnSiempre[i]) << i;
    }
}

void CambiaAjustes() {
    FactorPegado = 5;
    ColorFondo = 0;
    Velocidad = 95;
    Cronometro = 1;
    Sonido = 2;
    Pistas = 2;
    PiezasPorLado = 4;
    TipoPieza = 3;
    Zoom = 200;
    BotonEnSiempre[4] = false;
}

TEST_F(Sesion, SinFicheroEmpiezaDeCeroConLaPrimeraMuestraQueSirve) {
    // The samples in the order of the program's files: a missing one, one
    // that can't be read, one too large, then one that serves.
    EscribeFichero(programa + "/FORMAS.BMP", "no es una imagen");
    EscribeImagen(programa + "/CAMPANA.JPG", 2000, 1500);
    EscribeImagen(programa + "/CASA.JPG", 400, 300);
    EscribeImagen(programa + "/TRANVIA.JPG", 640, 480);
    CambiaAjustes();
    RestauraSesion();

    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, TITULO_ERROR);
    EXPECT_EQ(mensajes[0].texto, TEXTO_53);
    EXPECT_EQ(mensajes[0].lineas, 3);
    EXPECT_EQ(ErrorFichero, 53);
    EsperaAjustesDePrimeraVez();
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(programa));
    EXPECT_EQ(CarpetaImagen, programa);
    EXPECT_EQ(FicheroImagen, programa + "/CASA.JPG");
    EXPECT_EQ(NombreImagen, "CASA.JPG");
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 400);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), 300);
    EXPECT_EQ(teselari.Pic_W.Ancho(), 0); // the full-size copy is let go
    EXPECT_EQ(NroPiezas, 64);
    EXPECT_TRUE(PartidaCoherente());
    EXPECT_EQ(PartidaValida, VERDADERO); // a real deal
    EXPECT_EQ(teselari.MousePointer, 0);
}

TEST_F(Sesion, SinFicheroNiMuestrasQuedaUnTableroEnBlanco) {
    RestauraSesion();
    EXPECT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(ImagenValida, FALSO);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 320);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), 240);
    EXPECT_EQ(teselari.Pic_Origin.Point(100, 100), COLOR_BLANCO);
    EXPECT_TRUE(PartidaCoherente());
}

struct CasoError {
    const char *nombre;
    void (*prepara)(const std::string &raiz, const std::string &programa);
    int16_t numero;
    const char *texto;
};

const CasoError CASOS_ERROR[] = {
    {"CarpetaQueNoExiste",
     [](const std::string &raiz, const std::string &) { DirectorioTrabajo = raiz + "/no/existe"; },
     76, "INI ERROR 76: No existe el fichero de inicialización"},
    {"CarpetaBajoUnFichero",
     [](const std::string &raiz, const std::string &) {
         EscribeFichero(raiz + "/fichero", "x");
         DirectorioTrabajo = raiz + "/fichero/carpeta";
     },
     76, "INI ERROR 76: No existe el fichero de inicialización"},
    {"FicheroQueEsCarpeta",
     [](const std::string &, const std::string &programa) {
         fs::create_directory(programa + "/TESEL32.INI");
     },
     75, "INI ERROR 75"},
};

class SesionError : public Sesion, public ::testing::WithParamInterface<CasoError> {};

TEST_P(SesionError, UnMensajeYElPrimerInicio) {
    const CasoError &c = GetParam();
    CambiaAjustes();
    c.prepara(raiz, programa);
    RestauraSesion();
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, TITULO_ERROR);
    EXPECT_EQ(mensajes[0].texto, c.texto);
    EXPECT_EQ(mensajes[0].lineas, 3);
    EXPECT_EQ(ErrorFichero, c.numero);
    EsperaAjustesDePrimeraVez();
    EXPECT_TRUE(PartidaCoherente());
}

INSTANTIATE_TEST_SUITE_P(Errores, SesionError, ::testing::ValuesIn(CASOS_ERROR),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

struct CasoTamano {
    int32_t w, h;
    int zoom;
    bool aceptada;
    const char *medida; // as the message tells it
};

class SesionTamano : public Sesion, public ::testing::WithParamInterface<CasoTamano> {};

TEST_P(SesionTamano, SoloSeAceptaDe320x240A1024x768TrasElZoom) {
    const CasoTamano &c = GetParam();
    const std::string foto = programa + "/foto.img";
    EscribeImagen(foto, c.w, c.h);
    EscribeFichero(programa + "/TESEL32.INI", BloquesDeAjustes(foto, c.zoom, 3, 0));
    RestauraSesion();
    if (c.aceptada) {
        EXPECT_TRUE(mensajes.empty());
        EXPECT_TRUE(sonidos.empty());
        EXPECT_EQ(ImagenValida, VERDADERO);
        EXPECT_EQ(Zoom, c.zoom);
        EXPECT_EQ(teselari.Pic_Origin.Ancho(), c.w * c.zoom / 100);
        EXPECT_EQ(teselari.Pic_Origin.Alto(), c.h * c.zoom / 100);
    } else {
        ASSERT_EQ(mensajes.size(), 1u);
        EXPECT_EQ(mensajes[0].titulo, "Imagen no válida");
        std::string texto = "El  tamaño  de  la  imagen  que  está  intentando  cargar\r\n(";
        texto += c.medida;
        texto += " pixels ) no está dentro de los límites permitidos:\r\n\r\n"
                 "               Entre 320 y 1.024 pixels de anchura\r\n"
                 "               Entre 240 y 768 pixels de altura";
        EXPECT_EQ(mensajes[0].texto, texto);
        EXPECT_EQ(mensajes[0].lineas, 6);
        EXPECT_EQ(sonidos, std::vector<int16_t>{9});
        EXPECT_EQ(Zoom, 100);
        EXPECT_EQ(ImagenValida, FALSO);
        EXPECT_EQ(teselari.Pic_Origin.Ancho(), 320);
        EXPECT_EQ(teselari.Pic_Origin.Alto(), 240);
    }
    EXPECT_TRUE(PartidaCoherente());
}

INSTANTIATE_TEST_SUITE_P(Limites, SesionTamano,
                         ::testing::Values(CasoTamano{319, 240, 100, false, " 319 x 240"},
                                           CasoTamano{320, 240, 100, true, ""},
                                           CasoTamano{1024, 768, 100, true, ""},
                                           CasoTamano{1025, 768, 100, false, " 1025 x 768"},
                                           CasoTamano{320, 239, 100, false, " 320 x 239"},
                                           CasoTamano{640, 769, 100, false, " 640 x 769"},
                                           CasoTamano{1024, 240, 100, true, ""},
                                           CasoTamano{640, 480, 50, true, ""},
                                           CasoTamano{640, 480, 45, false, " 288 x 216"},
                                           CasoTamano{300, 200, 150, true, ""},
                                           CasoTamano{1000, 700, 105, false, " 1050 x 735"}));

TEST_F(Sesion, SinNombreDeImagenLaImagenVaciaNoCabe) {
    EscribeFichero(programa + "/TESEL32.INI", BloquesDeAjustes(" ", 100, 3, 0));
    RestauraSesion();
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, "Imagen no válida");
    EXPECT_NE(mensajes[0].texto.find("( 0 x 0 pixels )"), std::string::npos);
    EXPECT_TRUE(PartidaCoherente());
}

std::string TextoImagenPerdida(const std::string &fichero) {
    std::string t = "No  se  encuentra  la  imagen  utilizada  en  la  última  sesión:\r\n\r\n";
    t += fichero;
    t +=
        "\r\n\r\nCargue  desde  el  disco  una  imagen  que  sirva  de  fondo\r\npara  el  puzzle.";
    return t;
}

TEST_F(Sesion, UnaImagenQueYaNoEstaSeAnunciaYLosAjustesSiguen) {
    const std::string foto = programa + "/Fotos de Begoña/borrada.jpg";
    EscribeImagen(programa + "/CASA.JPG", 480, 360);
    EscribeFichero(programa + "/TESEL32.INI",
                   AWindows1252(BloquesDeAjustes(foto, 100, 5, 3, {20, 1, 1, 70, 1, 2})));
    RestauraSesion();
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, "Cargar Imagen");
    EXPECT_EQ(mensajes[0].texto, TextoImagenPerdida(foto));
    EXPECT_EQ(mensajes[0].lineas, 6);
    EXPECT_EQ(sonidos, std::vector<int16_t>{9});
    EXPECT_EQ(PiezasPorLado, 5);
    EXPECT_EQ(TipoPieza, 3);
    EXPECT_EQ(FactorPegado, 20);
    EXPECT_EQ(ColorFondo, 1);
    EXPECT_EQ(Velocidad, 70);
    EXPECT_EQ(Pistas, 2);
    EXPECT_EQ(NroPiezas, 50);
    // Until the dialog exists, the sample stands in.
    EXPECT_EQ(FicheroImagen, programa + "/CASA.JPG");
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_TRUE(PartidaCoherente());
}

TEST_F(Sesion, ConElSonidoApagadoLaImagenPerdidaNoSuena) {
    EscribeFichero(programa + "/TESEL32.INI",
                   BloquesDeAjustes(programa + "/no.img", 100, 3, 0, {50, 3, 2, 50, 2, 1}));
    RestauraSesion();
    EXPECT_EQ(mensajes.size(), 1u);
    EXPECT_TRUE(sonidos.empty());
}

TEST_F(Sesion, UnErrorDeLecturaEnLosAjustesDaLaImagenPorPerdida) {
    const std::string foto = programa + "/foto.img";
    EscribeImagen(foto, 400, 300);
    struct Caso {
        const char *nombre;
        std::string fichero;
    };
    const std::string bueno = BloquesDeAjustes(foto, 100, 4, 0, {40, 2, 1, 30, 1, 1});
    const std::vector<std::string> lineas = DivideLineas(bueno);
    std::string soloBloque1 = lineas[0] + "\r\n";
    std::string textoEnNumero = bueno;
    textoEnNumero.replace(textoEnNumero.find(",30,"), 4, ",xx,");
    std::string grande = bueno;
    grande.replace(grande.find(",30,"), 4, ",99999,");
    const Caso casos[] = {{"solo el bloque 1", soloBloque1},
                          {"texto en un número", textoEnNumero},
                          {"número sin cabida", grande}};
    for (const Caso &c : casos) {
        PreparaPantalla();
        DirectorioTrabajo = programa;
        mensajes.clear();
        EscribeFichero(programa + "/TESEL32.INI", c.fichero);
        RestauraSesion();
        ASSERT_EQ(mensajes.size(), 1u) << c.nombre;
        EXPECT_EQ(mensajes[0].titulo, "Cargar Imagen") << c.nombre;
        EXPECT_EQ(FicheroImagen, foto) << c.nombre;
        EXPECT_EQ(ColorFondo, 2) << c.nombre; // read before the fault: in force
        EXPECT_TRUE(PartidaCoherente()) << c.nombre;
    }
}

// A picture that is there but can't be decoded is lost like a missing one;
// one stating a size too large to decode is refused with that size at the
// zoom, even where the zoom would have brought it within the limits.
TEST_F(Sesion, UnaImagenIlegibleSePierdeYUnaDesmesuradaSeRechaza) {
    struct Caso {
        const char *nombre;
        std::string contenido;
        int16_t zoom;
        const char *titulo;
        const char *medida;
    };
    const Caso casos[] = {
        {"ilegible", "no es una imagen", 100, "Cargar Imagen", ""},
        {"enorme", "ENORME 100000 100000", 100, "Imagen no válida", "( 100000 x 100000 pixels )"},
        {"enorme con zoom", "ENORME 100000 80000", 5, "Imagen no válida", "( 5000 x 4000 pixels )"},
        {"cabría con su zoom", "ENORME 9000 7000", 10, "Imagen no válida", "( 900 x 700 pixels )"},
    };
    for (const Caso &c : casos) {
        PreparaPantalla();
        DirectorioTrabajo = programa;
        mensajes.clear();
        const std::string foto = programa + "/foto.img";
        EscribeFichero(foto, c.contenido);
        EscribeFichero(programa + "/TESEL32.INI", BloquesDeAjustes(foto, c.zoom, 3, 0));
        RestauraSesion();
        ASSERT_EQ(mensajes.size(), 1u) << c.nombre;
        EXPECT_EQ(mensajes[0].titulo, c.titulo) << c.nombre;
        EXPECT_NE(mensajes[0].texto.find(c.medida), std::string::npos) << c.nombre;
        EXPECT_EQ(teselari.Pic_W.Ancho() * teselari.Pic_W.Alto(), 0) << c.nombre;
        EXPECT_TRUE(PartidaCoherente()) << c.nombre;
    }
}

TEST_F(Sesion, FueraDeLaCarpetaDelProgramaElDialogoAbreEnLaDeTrabajo) {
    const std::string trabajo = datos + "/teselari/";
    fs::create_directories(trabajo);
    const std::string foto = programa + "/foto.img";
    EscribeImagen(foto, 400, 300);
    EscribeFichero(trabajo + "TESEL32.INI", BloquesDeAjustes(foto, 100, 3, 0));
    DirectorioTrabajo = trabajo;
    RestauraSesion();
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(CarpetaImagen, trabajo);
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(trabajo));
}

// A saved game written on Windows names drive "C:": it is not kept, and the
// next save names the working folder's volume.
TEST_F(Sesion, UnaUnidadQueNoEstaNoVuelveAlFichero) {
    const std::string foto = programa + "/foto.img";
    EscribeImagen(foto, 400, 300);
    std::string ini = BloquesDeAjustes(foto, 100, 3, 0);
    ini.replace(ini.find(",\"/\",\"/tmp\""), 12, ",\"C:\",\"/tmp\"");
    EscribeFichero(programa + "/TESEL32.INI", ini);
    DirectorioTrabajo = programa;
    RestauraSesion();
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(programa));
    GuardaSesion();
    EXPECT_EQ(LeeFichero(programa + "/TESEL32.INI").find("\"C:\""), std::string::npos);
}

} // namespace
