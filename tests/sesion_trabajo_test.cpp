// The working folder: the program's own when it can be written, else the
// user's data folder with the program's files copied once.
#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;
namespace fs = std::filesystem;

namespace {

TEST_F(Sesion, UnaCarpetaDelProgramaQueSePuedeEscribirSeQueda) {
    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, programa);
    EXPECT_EQ(fs::current_path(), fs::path(programa));
    EXPECT_FALSE(fs::exists(programa + "/CSCD.WRK"));
    EXPECT_FALSE(fs::exists(datos));
}

// The program's files that these tests lay in the program's folder, with
// their content.
const std::pair<const char *, const char *> FICHEROS[] = {
    {"TESEL32.INI", "ini del programa"},
    {"TESEL32.HIS", "his del programa"},
    {"CASA.JPG", "casa"},
    {"TRANVIA.JPG", "tranvia"},
};

// A folder named CSCD.WRK keeps the marker file from being created, also
// for a user who may write anywhere.
void BloqueaEscritura(const std::string &carpeta) {
    fs::create_directory(carpeta + "/CSCD.WRK");
}

TEST_F(Sesion, UnaCarpetaQueNoSePuedeEscribirPasaALaDeDatosYCopiaUnaVez) {
    for (const auto &[nombre, contenido] : FICHEROS) {
        EscribeFichero(programa + "/" + nombre, contenido);
    }
    EscribeFichero(programa + "/OTRO.JPG", "no es de la lista");
    BloqueaEscritura(programa);
    // One already in the data folder, with no initialisation file: kept.
    const std::string trabajo = datos + "/teselari/";
    EscribeFichero(programa + "/123.BMP", "123");
    fs::create_directories(trabajo);
    EscribeFichero(trabajo + "123.BMP", "cambiada");

    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, trabajo);
    EXPECT_EQ(fs::current_path(), fs::path(datos + "/teselari"));
    for (const auto &[nombre, contenido] : FICHEROS) {
        EXPECT_EQ(LeeFichero(trabajo + nombre), contenido) << nombre;
    }
    EXPECT_EQ(LeeFichero(trabajo + "123.BMP"), "cambiada");
    EXPECT_FALSE(fs::exists(trabajo + "OTRO.JPG"));
    EXPECT_FALSE(fs::exists(trabajo + "CATEDRAL.JPG")); // missing: skipped

    // The game went on from the copy; a second start copies nothing again.
    EscribeFichero(trabajo + "TESEL32.INI", "partida siguiente");
    EscribeFichero(trabajo + "TESEL32.HIS", "historia siguiente");
    fs::remove(trabajo + "CASA.JPG");
    DirectorioTrabajo = programa;
    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, trabajo);
    EXPECT_EQ(LeeFichero(trabajo + "TESEL32.INI"), "partida siguiente");
    EXPECT_EQ(LeeFichero(trabajo + "TESEL32.HIS"), "historia siguiente");
    EXPECT_FALSE(fs::exists(trabajo + "CASA.JPG"));
}

TEST_F(Sesion, UnaCarpetaBajoUnFicheroTambienPasaALaDeDatos) {
    EscribeFichero(raiz + "/fichero", "x");
    DirectorioTrabajo = raiz + "/fichero/programa";
    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, datos + "/teselari/");
    EXPECT_TRUE(fs::is_directory(datos + "/teselari"));
}

TEST_F(Sesion, LaCarpetaDeDatosSigueAXdgOALaCarpetaPersonal) {
    struct Caso {
        const char *xdg; // nullptr: unset
        std::string esperado;
    };
    setenv("HOME", (raiz + "/casa").c_str(), 1);
    const Caso casos[] = {
        {"/var/datos", "/var/datos/teselari/"},
        {"/var/datos/", "/var/datos/teselari/"},
        {nullptr, raiz + "/casa/.local/share/teselari/"},
        {"", raiz + "/casa/.local/share/teselari/"},
        {"relativa/datos", raiz + "/casa/.local/share/teselari/"}, // not valid: passed over
    };
    for (const Caso &c : casos) {
        if (c.xdg != nullptr) {
            setenv("XDG_DATA_HOME", c.xdg, 1);
        } else {
            unsetenv("XDG_DATA_HOME");
        }
        EXPECT_EQ(DirectorioDatos(), c.esperado) << (c.xdg ? c.xdg : "(unset)");
    }
}

TEST_F(Sesion, LaCarpetaDelProgramaSeGuardaSinBarraFinal) {
    const std::pair<const char *, const char *> casos[] = {
        {"/opt/teselari/", "/opt/teselari"}, {"/opt/teselari", "/opt/teselari"}, {"/", "/"}};
    for (const auto &[dado, guardado] : casos) {
        PonServicio(&ServiciosPlataforma::DirectorioPrograma, dado);
        EXPECT_EQ(DirectorioPrograma(), guardado);
    }
}

TEST_F(Sesion, LaCarpetaDelProgramaInstaladoEsLaDeDatosJuntoAlEjecutable) {
    fs::create_directories(raiz + "/usr/bin");
    fs::create_directories(raiz + "/usr/share/teselari");
    struct Caso {
        std::string ejecutable, relativa, esperada;
    };
    const Caso casos[] = {
        {raiz + "/usr/bin", "../share/teselari", raiz + "/usr/share/teselari"},
        {raiz + "/usr/bin", "../share/otra", raiz + "/usr/bin"}, // not installed: the build tree
        {raiz + "/usr/bin", "", raiz + "/usr/bin"},
        {programa, "../share/teselari", programa},
    };
    for (const Caso &c : casos) {
        EXPECT_EQ(CarpetaDelPrograma(c.ejecutable, c.relativa), c.esperada) << c.relativa;
    }
}

} // namespace
