// A saved game that can't be trusted never harms the game: the picture is
// dealt afresh, and nothing is shown that the game would not show anyway.
#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;

namespace {

std::string UneLineas(const std::vector<std::string> &lineas) {
    std::string r;
    for (const std::string &x : lineas) {
        r += x + "\r\n";
    }
    return r;
}

// Changes field `campo` (from 0) of line `linea` (from 0) of a file.
std::string CambiaCampo(const std::string &fichero, size_t linea, size_t campo,
                        const std::string &valor) {
    std::vector<std::string> lineas = DivideLineas(fichero);
    std::vector<std::string> campos;
    size_t inicio = 0;
    const std::string &l = lineas.at(linea);
    for (size_t coma; (coma = l.find(',', inicio)) != std::string::npos; inicio = coma + 1) {
        campos.push_back(l.substr(inicio, coma - inicio));
    }
    campos.push_back(l.substr(inicio));
    campos.at(campo) = valor;
    lineas[linea] = LineaIni(campos);
    lineas[linea].resize(lineas[linea].size() - 2);
    return UneLineas(lineas);
}

std::string QuitaUltimasLineas(const std::string &fichero, size_t cuantas) {
    std::vector<std::string> lineas = DivideLineas(fichero);
    lineas.resize(lineas.size() - cuantas);
    return UneLineas(lineas);
}

constexpr size_t BLOQUE4 = 13; // the first line of the pieces

struct CasoDanado {
    const char *nombre;
    std::string (*dana)(const std::string &);
    int16_t lado = 4, tipo = 0; // the grid in force afterwards
};

const CasoDanado CASOS[] = {
    {"OrdenRepetido",
     [](const std::string &f) {
         const auto campos = DivideCampos(DivideLineas(f)[BLOQUE4 + 1]);
         return CambiaCampo(f, BLOQUE4, 4, campos[4].texto);
     }},
    {"OrdenCero", [](const std::string &f) { return CambiaCampo(f, BLOQUE4 + 3, 4, "0"); }},
    {"OrdenMayorQueLasPiezas",
     [](const std::string &f) { return CambiaCampo(f, BLOQUE4 + 3, 4, "17"); }},
    {"OrdenNegativo", [](const std::string &f) { return CambiaCampo(f, BLOQUE4, 4, "-3"); }},
    {"PiezaMuyALaDerecha",
     [](const std::string &f) { return CambiaCampo(f, BLOQUE4 + 2, 0, "100000"); }},
    {"PiezaMuyArriba",
     [](const std::string &f) { return CambiaCampo(f, BLOQUE4 + 5, 1, "-5000"); }},
    {"CasaQueNoEsLaSuya", [](const std::string &f) { return CambiaCampo(f, BLOQUE4 + 7, 2, "1"); }},
    {"TextoEnUnaPieza", [](const std::string &f) { return CambiaCampo(f, BLOQUE4, 1, "abc"); }},
    {"NumeroSinCabida",
     [](const std::string &f) { return CambiaCampo(f, BLOQUE4, 0, "99999999999"); }},
    {"FaltaUnaPieza", [](const std::string &f) { return QuitaUltimasLineas(f, 1); }},
    {"SinPiezas", [](const std::string &f) { return QuitaUltimasLineas(f, 16); }},
    {"ColorFondoFuera", [](const std::string &f) { return CambiaCampo(f, 0, 2, "9"); }},
    {"FactorPegadoFuera", [](const std::string &f) { return CambiaCampo(f, 0, 1, "101"); }},
    {"VelocidadNegativa", [](const std::string &f) { return CambiaCampo(f, 0, 6, "-5"); }},
    {"CronometroFuera", [](const std::string &f) { return CambiaCampo(f, 0, 3, "3"); }},
    {"SonidoFuera", [](const std::string &f) { return CambiaCampo(f, 0, 7, "0"); }},
    {"PistasFuera", [](const std::string &f) { return CambiaCampo(f, 0, 8, "7"); }},
    // The grid of a first run stands, the file's can't be.
    {"LadoFuera", [](const std::string &f) { return CambiaCampo(f, 12, 2, "21"); }, 8, 0},
    {"TipoFuera", [](const std::string &f) { return CambiaCampo(f, 12, 4, "6"); }, 4, 1},
    {"CompletoNoEsBandera", [](const std::string &f) { return CambiaCampo(f, 12, 3, "1"); }},
    {"ValidaNoEsBandera", [](const std::string &f) { return CambiaCampo(f, 12, 5, "-2"); }},
    {"SegundosNegativos", [](const std::string &f) { return CambiaCampo(f, 12, 6, "-1"); }},
    {"ZoomFuera", [](const std::string &f) { return CambiaCampo(f, 12, 7, "0"); }},
};

class SesionDanada : public Sesion, public ::testing::WithParamInterface<CasoDanado> {
  protected:
    // A 4 x 4 game of rectangles, its clock at 999 and out of the history
    // book, saved; a fresh deal is told from it by both.
    std::string GuardaPartida() {
        JuegaPartida(4, 0, 480, 360);
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
    const std::string danado = GetParam().dana(bueno);
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
    EXPECT_EQ(PiezasPorLado, GetParam().lado);
    EXPECT_EQ(TipoPieza, GetParam().tipo);
    EXPECT_EQ(ColorFondo, 3);
    EXPECT_EQ(FactorPegado, 50);
    EXPECT_EQ(Velocidad, 50);
    EXPECT_EQ(Zoom, 100);
    EXPECT_TRUE(PartidaCoherente());
}

TEST_F(SesionDanada, UnNroPiezasDistintoNoCuentaLasLineas) {
    EscribeFichero(programa + "/TESEL32.INI", CambiaCampo(GuardaPartida(), 12, 1, "400"));
    RestauraSesion();
    EXPECT_EQ(NroPiezas, 16);
    EXPECT_EQ(SegundosCronometro, 999); // restored, not dealt
    EXPECT_TRUE(PartidaCoherente());
}

INSTANTIATE_TEST_SUITE_P(Danos, SesionDanada, ::testing::ValuesIn(CASOS),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

} // namespace
