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

// A folder named CSCD.WRK keeps the marker file from being created, also
// for a user who may write anywhere. Each of the program's files holds its
// name, but CATEDRAL.JPG is missing and 123.BMP already stands in the data
// folder, which has no initialisation file yet.
TEST_F(Sesion, UnaCarpetaQueNoSePuedeEscribirPasaALaDeDatosYCopiaUnaVez) {
    const std::string trabajo = datos + "/teselari/";
    for (const std::string nombre : FicherosPrograma) {
        if (nombre != "CATEDRAL.JPG") {
            EscribeFichero(programa + "/" + nombre, nombre);
        }
    }
    EscribeFichero(programa + "/OTRO.JPG", "no es de la lista");
    fs::create_directory(programa + "/CSCD.WRK");
    fs::create_directories(trabajo);
    EscribeFichero(trabajo + "123.BMP", "cambiada");

    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, trabajo);
    EXPECT_EQ(fs::current_path(), fs::path(datos + "/teselari"));
    for (const std::string nombre : FicherosPrograma) {
        const std::string copia = nombre == "123.BMP" ? "cambiada" : nombre;
        EXPECT_EQ(LeeFichero(trabajo + nombre), nombre == "CATEDRAL.JPG" ? "" : copia);
    }
    EXPECT_FALSE(fs::exists(trabajo + "OTRO.JPG"));
    EXPECT_FALSE(fs::exists(trabajo + "CATEDRAL.JPG"));

    // The game went on from the copy; a second start copies nothing again.
    EscribeFichero(trabajo + "TESEL32.INI", "partida siguiente");
    fs::remove(trabajo + "CASA.JPG");
    DirectorioTrabajo = programa;
    CompruebaSiCD();
    EXPECT_EQ(DirectorioTrabajo, trabajo);
    EXPECT_EQ(LeeFichero(trabajo + "TESEL32.INI"), "partida siguiente");
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
    setenv("HOME", (raiz + "/casa").c_str(), 1);
    // XDG_DATA_HOME unset (nullptr), or relative and so not valid, leads to
    // the home folder.
    const std::pair<const char *, std::string> casos[] = {
        {"/var/datos", "/var/datos/teselari/"},
        {"/var/datos/", "/var/datos/teselari/"},
        {nullptr, raiz + "/casa/.local/share/teselari/"},
        {"relativa/datos", raiz + "/casa/.local/share/teselari/"},
    };
    for (const auto &[variable, esperado] : casos) {
        if (variable != nullptr) {
            setenv("XDG_DATA_HOME", variable, 1);
        } else {
            unsetenv("XDG_DATA_HOME");
        }
        EXPECT_EQ(DirectorioDatos(), esperado) << (variable ? variable : "(unset)");
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
    const std::string bin = raiz + "/usr/bin";
    fs::create_directories(bin);
    fs::create_directories(raiz + "/usr/share/teselari");
    // Where the data folder is not there, the program runs from its build
    // tree.
    const std::pair<const char *, std::string> casos[] = {
        {"../share/teselari", raiz + "/usr/share/teselari"}, {"../share/otra", bin}, {"", bin}};
    for (const auto &[relativa, esperada] : casos) {
        EXPECT_EQ(CarpetaDelPrograma(bin, relativa), esperada) << relativa;
    }
}

} // namespace
