// TESEL32.HIS: the reading at start, the record of a fair finish, the write
// that a fault cannot tear, and the table's 16-bit top.
#include <algorithm>
#include <charconv>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "historico_comun.h"

using namespace PuzzGbl;

namespace {

std::string Lineas(int desde, int hasta) {
    std::string t;
    for (int i = desde; i <= hasta; ++i) {
        t += LineaHistorico(RegistroNumerado(i));
    }
    return t;
}

const std::string LINEA_1 = Lineas(1, 1);
const std::string LINEA_2 = Lineas(2, 2);

struct CasoLectura {
    const char *nombre;
    std::string contenido;
    int16_t registros;
    std::vector<std::string> mensajes;
    std::vector<int> numerados; // the records read, by RegistroNumerado's number
    std::function<void()> comprueba = nullptr;
};

class Lectura : public Historia, public ::testing::WithParamInterface<CasoLectura> {};

// Whatever the file holds, the table ends 20 places past its last record
// and every record counted is read into it.
TEST_P(Lectura, LeeLoQueElFicheroTiene) {
    const CasoLectura &c = GetParam();
    EscribeFichero(Ruta(), c.contenido);
    LeeHistorico();
    EXPECT_EQ(NroRegistrosHistorico, c.registros);
    EXPECT_EQ(Historico.size(), static_cast<size_t>(c.registros) + 21);
    EXPECT_EQ(Mensajes(), c.mensajes);
    EXPECT_EQ(std::filesystem::current_path(), carpeta);
    for (size_t i = 0; i < c.numerados.size(); ++i) {
        EXPECT_EQ(Historico[i + 1], RegistroNumerado(c.numerados[i])) << i + 1;
    }
    if (c.comprueba) {
        c.comprueba();
    }
}

std::string SinFinal(std::string t) {
    t.resize(t.size() - 2);
    return t;
}

// Record 1 with each comma and line end swapped: one field a line, LF only.
std::string CampoPorLinea() {
    std::string t = SinFinal(LINEA_1);
    for (char &c : t) {
        c = c == ',' ? '\n' : c;
    }
    return t + "\n";
}

const CasoLectura CASOS_LECTURA[] = {
    {"vacio", "", 0, {}, {}},
    {"lineas_en_blanco_y_ultima_sin_fin",
     "\r\n" + LINEA_1 + "\r\n\r\n" + SinFinal(LINEA_2),
     2,
     {},
     {1, 2}},
    {"otra_division_en_lineas",
     CampoPorLinea() + SinFinal(LINEA_2) + "," + SinFinal(LINEA_1) + "\r\n",
     3,
     {},
     {1, 2, 1}},
    {"control_z_termina", LINEA_1 + "\x1A" + LINEA_2, 1, {}, {1}},
    {"imagen_de_14_caracteres",
     "\"a\",\"b\",\"ABCDEFGHIJKLMN\",1,2,3,4,5,6,7,8.5,9,10,\"Ana\"\r\n",
     1,
     {},
     {},
     [] {
         EXPECT_EQ(Historico[1].Imagen, "ABCDEFGHIJKL");
         EXPECT_EQ(Historico[1].Fecha, "a         ");
         EXPECT_EQ(Historico[1].Dificultad, 8.5f);
     }},
    // A number that is no number is told once, however often it comes; the
    // records still count, with 0 in the field.
    {"texto_en_numeros",
     "\"a\",\"b\",\"c\",ancho,2,3,4,5,6,7,8,9,10,\"n\"\r\n"
     "\"a\",\"b\",\"c\",1,alto,3,4,5,6,7,x,9,10,\"n\"\r\n",
     2,
     {"HIS ERROR 13"},
     {},
     [] {
         EXPECT_EQ(Historico[1].AnchoPuzzle, 0);
         EXPECT_EQ(Historico[1].AltoPuzzle, 2);
         EXPECT_EQ(Historico[2].AltoPuzzle, 0);
         EXPECT_EQ(Historico[2].Dificultad, 0.0f);
         EXPECT_EQ(ErrorFichero, 13);
     }},
    // Too large for its field: passed over in silence.
    {"desbordado",
     "\"a\",\"b\",\"c\",40000,2,3,4,5,6,7,1e60,99999999999,10,\"n\"\r\n",
     1,
     {},
     {},
     [] {
         EXPECT_EQ(Historico[1].AnchoPuzzle, 0);
         EXPECT_EQ(Historico[1].Dificultad, 0.0f);
         EXPECT_EQ(Historico[1].Segundos, 0);
         EXPECT_EQ(Historico[1].FactorPegado, 10);
         EXPECT_EQ(ErrorFichero, 6);
     }},
    // The file ends inside a record: counted, in silence, the unread
    // numbers 0 and the unread strings what the last string read left.
    {"registro_cortado",
     LINEA_1 + "\"01/01/2025\",\"10:00:00\",\"X.JPG\",640",
     2,
     {},
     {1},
     [] {
         const RegistroHistorico &r = Historico[2];
         EXPECT_EQ(r.Imagen, "X.JPG       ");
         EXPECT_EQ(r.AnchoPuzzle, 640);
         EXPECT_EQ(r.AltoPuzzle, 0);
         EXPECT_EQ(r.Nombre, "X.JPG    ");
         EXPECT_EQ(ErrorFichero, 62);
     }},
};

INSTANTIATE_TEST_SUITE_P(Fichero, Lectura, ::testing::ValuesIn(CASOS_LECTURA),
                         [](const auto &i) { return std::string(i.param.nombre); });

// The file that can't be read: its message by number; a missing file is
// told at every start while it is missing.
TEST_F(Historia, SinFicheroLoDiceEnCadaArranque) {
    LeeHistorico();
    ASSERT_EQ(escritorio.mensajes.size(), 1u);
    const Escritorio::Mensaje m = escritorio.mensajes.back();
    EXPECT_EQ(m.titulo, "Error leyendo el fichero histórico");
    EXPECT_EQ(m.texto, "No se encuentra el fichero Histórico. Se creará de nuevo la próxima "
                       "vez que termine de resolver un puzzle.");
    EXPECT_EQ(m.lineas, 2);
    EXPECT_EQ(m.botones, 1);
    // A face too wide for two lines gets the message the lines it needs.
    RotuladorPrueba ancho;
    PonServicio(&ServiciosPlataforma::Texto, &ancho);
    LeeHistorico();
    PonServicio(&ServiciosPlataforma::Texto, nullptr);
    ASSERT_EQ(escritorio.mensajes.size(), 2u); // told again
    EXPECT_EQ(escritorio.mensajes.back().texto, m.texto);
    EXPECT_EQ(escritorio.mensajes.back().lineas, 3);
    std::filesystem::create_directory(Ruta());
    LeeHistorico();
    EXPECT_EQ(escritorio.mensajes.back().texto, "HIS ERROR 75");
    EXPECT_EQ(escritorio.mensajes.back().lineas, 1);
    DirectorioTrabajo = carpeta + "/no-existe";
    LeeHistorico();
    EXPECT_EQ(escritorio.mensajes.back().texto, "HIS ERROR 76: No existe el fichero Histórico");
}

// The finish of a game on a 3 x 3 board of rectangles: piece 2 lifted from
// its place and put back completes it.
void TerminaLaPartida() {
    const Pieza &q = Piezas[2];
    PonPieza(2, q.XCorrecta, q.YCorrecta);
    RepintaTablero();
    PiezaPrioritaria(PosicionDe(2));
    LevantaPieza(q.XCorrecta + 5, q.YCorrecta + 5);
    Pic_Trabajo_MouseUp(1, 0, static_cast<float>(q.XCorrecta + 5),
                        static_cast<float>(q.YCorrecta + 5));
}

class Final : public Historia {
  protected:
    void SetUp() override {
        Historia::SetUp();
        PreparaTablero(3, 0, 300, 300);
        DirectorioTrabajo = carpeta;
        NombreImagen = "Muñeca \"Ñ\"\nde trapo.jpg";
        NombreJugador = CadenaFija("Lucía", 9);
        SegundosCronometro = 3725;
    }
};

// A fair finish appends its line in the file's exact bytes, once the
// message is acknowledged; finishing the same deal again, no longer a fair
// game, adds nothing.
TEST_F(Final, UnaPartidaLimpiaEntraUnaVez) {
    EscribeFichero(Ruta(), SinFinal(LINEA_1) + "\x1A"); // an old file without its last CR LF
    LeeHistorico();
    PartidaValida = VERDADERO;
    escritorio.alMostrarMensaje = [this] {
        EXPECT_EQ(LeeFichero(Ruta()), SinFinal(LINEA_1) + "\x1A");
    };
    TerminaLaPartida();
    ASSERT_EQ(Mensajes(), std::vector<std::string>{"Ha conseguido resolver el puzzle"});
    EXPECT_EQ(PartidaValida, FALSO);
    const std::string esperada = "\"23/11/2026\",\"18:05:09\",\"Mu\361eca '\321' d\",300,300,3,0,"
                                 "9,100,100,";
    const std::string fichero = LeeFichero(Ruta());
    ASSERT_EQ(fichero.rfind(SinFinal(LINEA_1) + "\r\n" + esperada, 0), 0u) << fichero;
    const std::string resto = fichero.substr(LINEA_1.size() + esperada.size());
    float leida = 0;
    const auto fin = std::from_chars(resto.data(), resto.data() + resto.size(), leida);
    EXPECT_EQ(leida, Dificultad);
    EXPECT_EQ(std::string(fin.ptr), ",3725,50,\"Luc\355a    \"\r\n");

    escritorio.alMostrarMensaje = nullptr;
    TerminaLaPartida();
    EXPECT_EQ(escritorio.mensajes.size(), 2u);
    EXPECT_EQ(LeeFichero(Ruta()), fichero);
    EXPECT_EQ(NroRegistrosHistorico, 2);
}

// A full disk halfway through the write: the old records stay whole, the
// record waits, and the next write takes it.
TEST_F(Historia, UnFalloAlEscribirDejaEnterosLosRegistrosViejos) {
    const std::string viejo = Lineas(1, 3);
    EscribeFichero(Ruta(), viejo);
    LeeHistorico();
    SimulaFalloEscritura(static_cast<int64_t>(viejo.size() + 30));
    AnadeHistorico();
    EXPECT_EQ(LeeFichero(Ruta()), viejo);
    EXPECT_FALSE(LineasHistoricoPendientes.empty());
    SimulaFalloEscritura(-1);
    AnadeHistorico();
    LeeHistorico();
    EXPECT_EQ(NroRegistrosHistorico, 5);
    EXPECT_EQ(Historico[3], RegistroNumerado(3));
    EXPECT_EQ(Historico[5].Fecha, "23/11/2026");
    EXPECT_FALSE(std::filesystem::exists(Ruta() + ".tmp"));
}

// Past the 16-bit top the table holds the newest records and the file
// keeps them all; a finish with the table full still reaches the file.
TEST_F(Historia, ElTopeDeLaTablaNoPierdeRegistrosDelFichero) {
    const int total = MAXIMO_REGISTROS_HISTORICO + 3;
    const std::string viejo = Lineas(1, total);
    EscribeFichero(Ruta(), viejo);
    LeeHistorico();
    EXPECT_TRUE(escritorio.mensajes.empty());
    ASSERT_EQ(NroRegistrosHistorico, MAXIMO_REGISTROS_HISTORICO);
    EXPECT_EQ(Historico[1], RegistroNumerado(4));
    EXPECT_EQ(Historico[MAXIMO_REGISTROS_HISTORICO], RegistroNumerado(total));
    AnadeHistorico();
    EXPECT_EQ(NroRegistrosHistorico, MAXIMO_REGISTROS_HISTORICO);
    EXPECT_EQ(Historico[1], RegistroNumerado(5));
    EXPECT_EQ(Historico[MAXIMO_REGISTROS_HISTORICO].Fecha, "23/11/2026");
    const std::string fichero = LeeFichero(Ruta());
    EXPECT_EQ(fichero.substr(0, viejo.size()), viejo);
    EXPECT_EQ(std::count(fichero.begin(), fichero.end(), '\n'), total + 1);
}

} // namespace
