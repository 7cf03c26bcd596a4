// libFuzzer target of the saved game: any bytes as TESEL32.INI, read back by
// RestauraSesion. Whatever the file holds, the game that comes out has its
// pile in order: OrdenPiezas a permutation of 1..NroPiezas.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "EntornoFuzz.h"
#include "core/PuzzGbl.h"
#include "session/Sesion.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t tamano) {
    EstadoLimpio();
    const std::string ini = PreparaEntorno() + "/TESEL32.INI";
    std::FILE *f = std::fopen(ini.c_str(), "wb");
    if (f == nullptr) {
        std::abort();
    }
    if (tamano > 0 && std::fwrite(datos, 1, tamano, f) != tamano) {
        std::abort();
    }
    std::fclose(f);
    RestauraSesion();
    if (!OrdenEsPermutacion()) {
        std::fprintf(stderr, "OrdenPiezas is not a permutation of 1..%d\n", PuzzGbl::NroPiezas);
        std::abort();
    }
    return 0;
}
