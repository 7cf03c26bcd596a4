// Reading the saved game at start: the ways without a file, with a picture
// that is gone or does not fit, and the first start.
#include "sesion_comun.h"
#include "session/SesionImagen.h"
#include "session/SesionTexto.h"

using namespace PuzzGbl;
using namespace sesion_prueba;
namespace fs = std::filesystem;

namespace {

// Each setting: its value on a first run, and one away from it.
struct Ajuste {
    int16_t *valor;
    int16_t primeraVez, cambiado;
};

const Ajuste AJUSTES[] = {{&FactorPegado, 50, 5}, {&ColorFondo, 3, 0}, {&Velocidad, 50, 95},
                          {&Cronometro, 2, 1},    {&Sonido, 1, 2},     {&Pistas, 1, 2},
                          {&PiezasPorLado, 8, 4}, {&TipoPieza, 1, 3},  {&PiezasDobles, 0, 1},
                          {&Zoom, 100, 200}};

// The settings of a first run, whatever stood before.
void EsperaAjustesDePrimeraVez() {
    for (const Ajuste &a : AJUSTES) {
        EXPECT_EQ(*a.valor, a.primeraVez) << a.cambiado;
    }
    EXPECT_TRUE(BotonEnSiempre[4]);
}

void CambiaAjustes() {
    for (const Ajuste &a : AJUSTES) {
        *a.valor = a.cambiado;
    }
    BotonEnSiempre[4] = false;
}

struct CasoError {
    const char *nombre;
    void (*prepara)(const std::string &raiz, const std::string &programa);
    int16_t numero;
    const char *texto;
};

// Without a file the samples are tried in the order of the program's files:
// a missing one, one that can't be read, one too large, then one that
// serves. After any other fault the board is left blank.
const CasoError CASOS_ERROR[] = {
    {"SinFichero",
     [](const std::string &, const std::string &programa) {
         EscribeFichero(programa + "/FORMAS.BMP", "no es una imagen");
         EscribeImagen(programa + "/CAMPANA.JPG", 2000, 1500);
         EscribeImagen(programa + "/CASA.JPG", 400, 300);
         EscribeImagen(programa + "/TRANVIA.JPG", 640, 480);
     },
     53,
     "No se encuentra el fichero de inicialización con los datos de la última sesión. Cargue "
     "desde el disco una imagen que sirva de fondo para el puzzle."},
    {"CarpetaQueNoExiste",
     [](const std::string &raiz, const std::string &) { DirectorioTrabajo = raiz + "/no/existe"; },
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
    EXPECT_EQ(mensajes[0].titulo, "Error leyendo fichero de datos iniciales");
    EXPECT_EQ(mensajes[0].texto, c.texto);
    EXPECT_EQ(mensajes[0].lineas, 3);
    EXPECT_EQ(ErrorFichero, c.numero);
    EsperaAjustesDePrimeraVez();
    EXPECT_TRUE(PartidaCoherente());
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(DirectorioTrabajo));
    EXPECT_EQ(CarpetaImagen, DirectorioTrabajo);
    EXPECT_EQ(teselari.MousePointer, 0);
    if (c.numero != 53) {
        EXPECT_EQ(ImagenValida, FALSO);
        EXPECT_EQ(teselari.Pic_Origin.Point(100, 100), COLOR_BLANCO);
        return;
    }
    EXPECT_EQ(FicheroImagen, programa + "/CASA.JPG");
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 400);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), 300);
    EXPECT_EQ(teselari.Pic_W.Ancho(), 0); // the full-size copy is let go
    EXPECT_EQ(PartidaValida, VERDADERO);  // a real deal
}

INSTANTIATE_TEST_SUITE_P(Errores, SesionError, ::testing::ValuesIn(CASOS_ERROR),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST(SesionImagen, SoloSeAceptaDe320x240A1024x768) {
    const struct {
        int64_t w, h;
        bool aceptada;
    } casos[] = {{319, 240, false},  {320, 240, true},  {1024, 768, true},
                 {1025, 768, false}, {320, 239, false}, {640, 769, false}};
    for (const auto &c : casos) {
        EXPECT_EQ(TamanoPermitido(c.w, c.h), c.aceptada) << c.w << " x " << c.h;
    }
}

struct CasoImagen {
    const char *nombre;
    const char *fichero;   // in the program's folder; " " names none
    const char *contenido; // nullptr: no file
    int zoom;
    const char *medida;       // as the refusal tells it; nullptr: lost, not refused
    bool soloBloque1 = false; // the saved game cut after its first line
};

std::string TextoImagenPerdida(const std::string &fichero) {
    std::string t = "No  se  encuentra  la  imagen  utilizada  en  la  última  sesión:\r\n\r\n";
    t += fichero;
    t +=
        "\r\n\r\nCargue  desde  el  disco  una  imagen  que  sirva  de  fondo\r\npara  el  puzzle.";
    return t;
}

// The refusal tells the size at the zoom, also of a picture stating a size
// too large to decode, even where the zoom would bring it within the
// limits; a picture that can't be decoded is lost like a missing one, and
// so is a good one named by a file that fails to read after it. The
// settings read stay in force.
const CasoImagen CASOS_IMAGEN[] = {
    {"Perdida", "Fotos de Begoña/borrada.jpg", nullptr, 100, nullptr},
    {"Ilegible", "foto.img", "no es una imagen", 100, nullptr},
    {"SoloElBloque1", "foto.img", "IMAGEN 400 300", 100, nullptr, true},
    {"SinNombre", " ", nullptr, 100, " 0 x 0"},
    {"Estrecha", "foto.img", "IMAGEN 319 240", 100, " 319 x 240"},
    {"GrandeTrasElZoom", "foto.img", "IMAGEN 1000 700", 105, " 1050 x 735"},
    {"DesmesuradaQueCabriaConSuZoom", "foto.img", "ENORME 9000 7000", 10, " 900 x 700"},
};

class SesionImagenQueNoSirve : public Sesion, public ::testing::WithParamInterface<CasoImagen> {};

TEST_P(SesionImagenQueNoSirve, SeAnunciaYQuedaEnBlanco) {
    const CasoImagen &c = GetParam();
    const std::string foto = c.fichero == std::string(" ") ? " " : programa + "/" + c.fichero;
    if (c.contenido != nullptr) {
        EscribeFichero(foto, c.contenido);
    }
    FicheroImagen = foto;
    Zoom = static_cast<int16_t>(c.zoom);
    ColorFondo = 2;
    std::string ini = TextoSesion();
    if (c.soloBloque1) {
        ini = DivideLineas(ini)[0] + "\r\n";
    }
    EscribeFichero(programa + "/TESEL32.INI", ini);
    PreparaPantalla();
    DirectorioTrabajo = programa;
    RestauraSesion();
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(ColorFondo, 2); // read before any fault: in force
    EXPECT_EQ(mensajes[0].lineas, 6);
    if (c.medida == nullptr) {
        EXPECT_EQ(mensajes[0].titulo, "Cargar Imagen");
        EXPECT_EQ(mensajes[0].texto, TextoImagenPerdida(foto));
    } else {
        EXPECT_EQ(mensajes[0].titulo, "Imagen no válida");
        std::string texto = "El  tamaño  de  la  imagen  que  está  intentando  cargar\r\n(";
        texto += c.medida;
        texto += " pixels ) no está dentro de los límites permitidos:\r\n\r\n"
                 "               Entre 320 y 1.024 pixels de anchura\r\n"
                 "               Entre 240 y 768 pixels de altura";
        EXPECT_EQ(mensajes[0].texto, texto);
        EXPECT_EQ(Zoom, 100);
    }
    EXPECT_EQ(sonidos, std::vector<int16_t>{9});
    EXPECT_EQ(ImagenValida, FALSO);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 320);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), 240);
    EXPECT_EQ(teselari.Pic_W.Ancho() * teselari.Pic_W.Alto(), 0);
    EXPECT_TRUE(PartidaCoherente());
}

INSTANTIATE_TEST_SUITE_P(Limites, SesionImagenQueNoSirve, ::testing::ValuesIn(CASOS_IMAGEN),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST_F(Sesion, FueraDeLaCarpetaDelProgramaElDialogoAbreEnLaDeTrabajo) {
    const std::string trabajo = datos + "/teselari/";
    fs::create_directories(trabajo);
    JuegaPartida(3, 0);
    DirectorioTrabajo = trabajo;
    GuardaSesion();
    PreparaPantalla();
    DirectorioTrabajo = trabajo;
    RestauraSesion();
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(CarpetaImagen, trabajo);
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(trabajo));
}

// A saved game written on Windows names drive "C:": it is not kept, and the
// next save names the working folder's volume.
TEST_F(Sesion, UnaUnidadQueNoEstaNoVuelveAlFichero) {
    JuegaPartida(3, 0);
    UnidadImagen = "C:";
    GuardaSesion();
    PreparaPantalla();
    DirectorioTrabajo = programa;
    RestauraSesion();
    EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(programa));
    GuardaSesion();
    EXPECT_EQ(LeeFichero(programa + "/TESEL32.INI").find("\"C:\""), std::string::npos);
}

} // namespace
