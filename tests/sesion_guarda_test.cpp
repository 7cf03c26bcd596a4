// Writing the saved game: its exact bytes, and a game that comes back whole.
#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;

namespace {

// A small game set by hand over a first run's settings: three pieces of a
// 3 x 3 grid would not be a game, but the writer takes the state as it
// stands.
void PreparaEstadoConocido() {
    FicheroImagen = "/home/Óscar/año/foto.jpg";
    FactorPegado = 35;
    ColorFondo = 4;
    Cronometro = 1;
    ModeloVisible = true;
    Velocidad = 75;
    Sonido = 2;
    NombreJugador = "Muñoz"; // padded to nine characters
    BotonEnSiempre[3] = false;
    BotonEnDerecho[3] = true;
    BotonEnDerecho[11] = true;
    NombreImagen = "foto.jpg";
    NroPiezas = 2;
    PiezasPorLado = 3;
    TipoPieza = 1;
    PartidaValida = VERDADERO;
    SegundosCronometro = 3725;
    Zoom = 150;
    UnidadImagen = "/home";
    CarpetaImagen = "/home/Óscar/año";
    Piezas = {Pieza{}, Pieza{-12, 40, 100, 0}, Pieza{0, 0, 0, 0}};
    OrdenPiezas = {0, 2, 1};
}

const char BYTES_CONOCIDOS[] =
    "\"/home/\xD3scar/a\xF1o/foto.jpg\",35,4,1,#TRUE#,\"Mu\xF1oz    \",75,2,1\r\n"
    "#TRUE#,#FALSE#\r\n#TRUE#,#FALSE#\r\n#FALSE#,#TRUE#\r\n#TRUE#,#FALSE#\r\n"
    "#TRUE#,#FALSE#\r\n#TRUE#,#FALSE#\r\n#TRUE#,#FALSE#\r\n#TRUE#,#FALSE#\r\n"
    "#TRUE#,#FALSE#\r\n#TRUE#,#FALSE#\r\n#TRUE#,#TRUE#\r\n"
    "\"foto.jpg\",2,3,0,1,-1,3725,150,\"/home\",\"/home/\xD3scar/a\xF1o\"\r\n"
    "-12,40,100,0,2\r\n"
    "0,0,0,0,1\r\n";

TEST_F(Sesion, EscribeLosBytesExactosDeUnaPartida) {
    EscribeFichero(programa + "/TESEL32.INI", std::string(100000, 'x')); // replaced whole
    PreparaEstadoConocido();
    const std::string esperado(BYTES_CONOCIDOS, sizeof BYTES_CONOCIDOS - 1);
    GuardaSesion();
    EXPECT_EQ(LeeFichero(programa + "/TESEL32.INI"), esperado);
    EXPECT_FALSE(std::filesystem::exists(programa + "/TESEL32.INI.tmp"));
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::path(programa));
}

TEST_F(Sesion, SinCarpetaDondeEscribirNoSePierdeElFicheroAnterior) {
    // The working folder holds a folder named like the temporary file: the
    // write fails and the old file stays whole.
    EscribeFichero(programa + "/TESEL32.INI", "anterior");
    std::filesystem::create_directory(programa + "/TESEL32.INI.tmp");
    GuardaSesion();
    EXPECT_EQ(LeeFichero(programa + "/TESEL32.INI"), "anterior");
}

} // namespace
