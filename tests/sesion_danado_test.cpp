// A saved game that can't be trusted never harms the game: the picture is
// dealt afresh, and nothing is shown that the game would not show anyway.
// Random bytes are left to the fuzz target.
#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;

namespace {

// Changes field `campo` (from 0) of line `linea` (from 0) of a file.
std::string CambiaCampo(const std::string &fichero, size_t linea, size_t campo,
                        const std::string &valor) {
    const std::vector<std::string> lineas = DivideLineas(fichero);
    std::vector<std::string> campos;
    for (const CampoIni &c : DivideCampos(lineas.at(linea))) {
        campos.push_back(c.entrecomillado ? '"' + c.texto + '"' : c.texto);
    }
    campos.at(campo) = valor;
    std::string r;
    for (size_t i = 0; i < lineas.size(); ++i) {
        r += i == linea ? LineaIni(campos) : lineas[i] + "\r\n";
    }
    return r;
}

constexpr size_t BLOQUE4 = 13; // the first line of the pieces

// Field `campo` of line `linea` (both from 0) changed to `valor`; nullptr
// copies the same field of the next line.
struct CasoDanado {
    const char *nombre;
    size_t linea, campo;
    const char *valor;
    int16_t lado = 4, tipo = 0; // the grid in force afterwards
};

const CasoDanado CASOS[] = {
    {"OrdenRepetido", BLOQUE4, 4, nullptr},
    {"OrdenCero", BLOQUE4 + 3, 4, "0"},
    {"OrdenMayorQueLasPiezas", BLOQUE4 + 3, 4, "17"},
    {"PiezaMuyALaDerecha", BLOQUE4 + 2, 0, "100000"},
    {"PiezaMuyArriba", BLOQUE4 + 5, 1, "-5000"},
    {"CasaQueNoEsLaSuya", BLOQUE4 + 7, 2, "1"},
    {"TextoEnUnaPieza", BLOQUE4, 1, "abc"},
    {"ColorFondoFuera", 0, 2, "9"},
    {"FactorPegadoFuera", 0, 1, "101"},
    {"VelocidadNegativa", 0, 6, "-5"},
    {"CronometroFuera", 0, 3, "3"},
    {"SonidoFuera", 0, 7, "0"},
    {"PistasFuera", 0, 8, "7"},
    // The grid of a first run stands, the file's can't be.
    {"LadoFuera", 12, 2, "21", 8, 0},
    {"TipoFuera", 12, 4, "6", 4, 1},
    {"CompletoNoEsBandera", 12, 3, "1"},
    {"ValidaNoEsBandera", 12, 5, "-2"},
    {"SegundosNegativos", 12, 6, "-1"},
    {"ZoomFuera", 12, 7, "0"},
};

class SesionDanada : public Sesion, public ::testing::WithParamInterface<CasoDanado> {
  protected:
    // A 4 x 4 game of rectangles, its clock at 999 and out of the history
    // book, saved; a fresh deal is told from it by both.
    std::string GuardaPartida() {
        JuegaPartida(4, 0);
        SegundosCronometro = 999;
        PartidaValida = FALSO;
        GuardaSesion();
        PreparaPantalla();
        DirectorioTrabajo = programa;
        return LeeFichero(programa + "/TESEL32.INI");
    }
};

TEST_P(SesionDanada, SeBarajaDeNuevoLaMismaImagen) {
    const std::string bueno = GuardaPartida();
    const CasoDanado &c = GetParam();
    const std::string valor = c.valor != nullptr
                                  ? c.valor
                                  : DivideCampos(DivideLineas(bueno)[c.linea + 1])[c.campo].texto;
    const std::string danado = CambiaCampo(bueno, c.linea, c.campo, valor);
    ASSERT_NE(danado, bueno);
    EscribeFichero(programa + "/TESEL32.INI", danado);
    RestauraSesion();
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(FicheroImagen, programa + "/foto.img");
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(SesionRestaurando, FALSO);
    EXPECT_EQ(SegundosCronometro, 0);
    EXPECT_EQ(PartidaValida, VERDADERO);
    // A setting that can't be is not taken: the one in force stays.
    EXPECT_EQ(PiezasPorLado, c.lado);
    EXPECT_EQ(TipoPieza, c.tipo);
    EXPECT_EQ(ColorFondo, 3);
    EXPECT_EQ(FactorPegado, 50);
    EXPECT_EQ(Velocidad, 50);
    EXPECT_EQ(Zoom, 100);
    EXPECT_TRUE(PartidaCoherente());
}

// What the reader does not look at leaves the game restored, not dealt.
TEST_F(SesionDanada, LoQueNoSeLeeNoImpideRestaurar) {
    const std::string bueno = GuardaPartida();
    std::string camposDeMas = bueno;
    camposDeMas.insert(camposDeMas.find("\r\n"), ",1,2,3");
    const std::string casos[] = {CambiaCampo(bueno, 12, 1, "400"), camposDeMas,
                                 bueno + "1,2,3,4,5\r\nbasura\r\n"};
    for (const std::string &fichero : casos) {
        PreparaPantalla();
        DirectorioTrabajo = programa;
        EscribeFichero(programa + "/TESEL32.INI", fichero);
        RestauraSesion();
        EXPECT_EQ(SegundosCronometro, 999);
        EXPECT_TRUE(PartidaCoherente());
    }
}

// The file cut after any field: whatever was read, the game comes up with
// its settings in range and its pile a permutation.
TEST_F(SesionDanada, CortadoTrasCadaCampoLaPartidaEsCoherente) {
    const std::string bueno = GuardaPartida();
    EscribeImagen(programa + "/CASA.JPG", 320, 240); // stands in for a lost picture
    for (size_t fin = 0; fin <= bueno.size(); ++fin) {
        if (fin == bueno.size() || bueno[fin] == '\n' || bueno[fin] == ',') {
            PreparaPantalla();
            DirectorioTrabajo = programa;
            EscribeFichero(programa + "/TESEL32.INI", bueno.substr(0, fin));
            RestauraSesion();
            EXPECT_TRUE(PartidaCoherente()) << "cut at byte " << fin;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Danos, SesionDanada, ::testing::ValuesIn(CASOS),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

} // namespace
