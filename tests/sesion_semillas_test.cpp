// The seed corpus of the saved-game fuzz target, read as saved games: each
// file brings back a whole game and is written out again byte for byte, so
// the corpus stays a set of valid files as the format moves on.
#include <algorithm>

#include "sesion_comun.h"
#include "session/SesionTexto.h"

using namespace sesion_prueba;

namespace {

std::vector<std::string> FicherosSemilla() {
    std::vector<std::string> ficheros;
    for (const auto &e : std::filesystem::directory_iterator(TESELARI_SEMILLAS_FUZZ)) {
        ficheros.push_back(e.path().string());
    }
    std::sort(ficheros.begin(), ficheros.end());
    return ficheros;
}

class SesionSemillas : public Sesion, public ::testing::WithParamInterface<std::string> {};

TEST_P(SesionSemillas, LaSemillaEsUnaPartidaQueSeGuardaIgual) {
    const std::string contenido = LeeFichero(GetParam());
    ASSERT_FALSE(contenido.empty());
    // The seeds name their picture relative to the working folder; it is
    // the size the fuzz target's loader gives.
    EscribeImagen(programa + "/foto.img", 400, 300);
    EscribeFichero(programa + "/TESEL32.INI", contenido);
    RestauraSesion();
    EXPECT_TRUE(mensajes.empty()) << mensajes.front().titulo;
    EXPECT_TRUE(PartidaCoherente());
    EXPECT_EQ(PuzzGbl::FicheroImagen, "foto.img");
    EXPECT_EQ(TextoSesion(), contenido);
}

INSTANTIATE_TEST_SUITE_P(Corpus, SesionSemillas, ::testing::ValuesIn(FicherosSemilla()),
                         [](const ::testing::TestParamInfo<std::string> &i) {
                             return std::filesystem::path(i.param).stem().string();
                         });

} // namespace
