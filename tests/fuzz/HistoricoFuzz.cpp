// libFuzzer target of the history file: any bytes as TESEL32.HIS, read by
// LeeHistorico. Whatever the file holds, the table ends 20 places past its
// last record, never holds more than its top, and every record whose
// strings hold no double quote, written back in the file's form, reads as
// itself.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "EntornoFuzz.h"
#include "core/PuzzGbl.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"

using namespace PuzzGbl;

namespace {

void Escribe(const std::string &ruta, const uint8_t *datos, size_t tamano) {
    std::FILE *f = std::fopen(ruta.c_str(), "wb");
    if (f == nullptr || (tamano > 0 && std::fwrite(datos, 1, tamano, f) != tamano)) {
        std::abort();
    }
    std::fclose(f);
}

void Falla(const char *que) {
    std::fprintf(stderr, "%s\n", que);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t tamano) {
    EstadoLimpio();
    const std::string ruta = PreparaEntorno() + "/TESEL32.HIS";
    Escribe(ruta, datos, tamano);
    LeeHistorico();
    if (NroRegistrosHistorico < 0 || NroRegistrosHistorico > MAXIMO_REGISTROS_HISTORICO ||
        Historico.size() != static_cast<size_t>(NroRegistrosHistorico) + 21) {
        Falla("the table's bound is wrong");
    }
    std::vector<RegistroHistorico> leidos;
    std::string reescrito;
    for (int16_t i = 1; i <= NroRegistrosHistorico; ++i) {
        const RegistroHistorico &r = Historico[static_cast<size_t>(i)];
        if ((r.Fecha + r.Hora + r.Imagen + r.Nombre).find('"') == std::string::npos) {
            leidos.push_back(r);
            reescrito += LineaHistorico(r);
        }
    }
    Escribe(ruta, reinterpret_cast<const uint8_t *>(reescrito.data()), reescrito.size());
    LeeHistorico();
    if (NroRegistrosHistorico != static_cast<int16_t>(leidos.size())) {
        Falla("the records written back are not as many");
    }
    for (size_t i = 0; i < leidos.size(); ++i) {
        if (!(Historico[i + 1] == leidos[i])) {
            Falla("a record written back reads otherwise");
        }
    }
    return 0;
}
