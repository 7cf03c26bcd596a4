// Damaged and random files, whatever their bytes: the game always comes up
// with its settings in range and a pile that is a permutation.
#include <random>

#include "sesion_comun.h"

using namespace PuzzGbl;
using namespace sesion_prueba;

namespace {

class SesionAleatoria : public Sesion {
  protected:
    void SetUp() override {
        Sesion::SetUp();
        JuegaPartida(3, 1, 320, 240);
        SegundosCronometro = 12;
        GuardaSesion();
        bueno = LeeFichero(programa + "/TESEL32.INI");
        // The sample that stands in when the picture is lost.
        EscribeImagen(programa + "/CASA.JPG", 320, 240);
    }

    // Reads `fichero` as the saved game of a fresh start.
    ::testing::AssertionResult Restaura(const std::string &fichero) {
        PreparaPantalla();
        DirectorioTrabajo = programa;
        EscribeFichero(programa + "/TESEL32.INI", fichero);
        RestauraSesion();
        return PartidaCoherente();
    }

    std::string bueno;
};

TEST_F(SesionAleatoria, CortadoEnCadaLinea) {
    for (size_t fin = 0; fin <= bueno.size(); ++fin) {
        if (fin == bueno.size() || bueno[fin] == '\n' || bueno[fin] == ',') {
            EXPECT_TRUE(Restaura(bueno.substr(0, fin))) << "cut at byte " << fin;
        }
    }
}

TEST_F(SesionAleatoria, BytesCambiadosAlAzar) {
    std::mt19937 azar(20261122);
    const std::string interesantes = "0123456789-,\"\r\n#TRUEFALS \x01\xFF";
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        std::string f = bueno;
        const int cambios = 1 + static_cast<int>(azar() % 6);
        for (int c = 0; c < cambios; ++c) {
            const size_t pos = azar() % f.size();
            const char byte = azar() % 2 ? interesantes[azar() % interesantes.size()]
                                         : static_cast<char>(azar() & 0xFF);
            switch (azar() % 3) {
            case 0:
                f[pos] = byte;
                break;
            case 1:
                f.insert(f.begin() + static_cast<std::ptrdiff_t>(pos), byte);
                break;
            default:
                f.erase(pos, 1 + azar() % 4);
                break;
            }
            if (f.empty()) {
                f.push_back('x');
            }
        }
        ASSERT_TRUE(Restaura(f)) << "round " << vuelta;
    }
}

TEST_F(SesionAleatoria, LineasDeMasYCamposDeMas) {
    std::string largo = bueno;
    largo += "1,2,3,4,5\r\nbasura\r\n";
    EXPECT_TRUE(Restaura(largo));
    EXPECT_EQ(SegundosCronometro, 12); // what follows the game is not read
    std::string lineaLarga = bueno;
    lineaLarga.insert(lineaLarga.find("\r\n"), ",1,2,3");
    EXPECT_TRUE(Restaura(lineaLarga));
}

} // namespace
