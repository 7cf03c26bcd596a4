#include "history/CamposHistorico.h"

#include <charconv>
#include <cmath>
#include <limits>

std::string CampoDecimal(float valor) {
    char texto[64];
    const auto r = std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::fixed);
    if (r.ec != std::errc()) {
        return "0";
    }
    return std::string(texto, r.ptr);
}

namespace {

// The field as plain text: a quoted number is read by what the quotes hold.
CampoIni SinComillas(const CampoIni &campo) {
    CampoIni c = campo;
    c.entrecomillado = false;
    return c;
}

bool SoloCifras(const std::string &t) {
    size_t i = !t.empty() && t[0] == '-' ? 1 : 0;
    if (i >= t.size()) {
        return false;
    }
    for (; i < t.size(); ++i) {
        if (t[i] < '0' || t[i] > '9') {
            return false;
        }
    }
    return true;
}

} // namespace

int16_t LeeEntero(const CampoIni &campo, int64_t minimo, int64_t maximo, int64_t &valor) {
    const CampoIni c = SinComillas(campo);
    if (c.texto.empty()) {
        valor = 0;
        return 0;
    }
    if (const auto v = LeeNumero(c, minimo, maximo)) {
        valor = *v;
        return 0;
    }
    const bool esNumero =
        LeeNumero(c, std::numeric_limits<int64_t>::min(), std::numeric_limits<int64_t>::max())
            .has_value() ||
        SoloCifras(c.texto);
    return esNumero ? ERROR_DESBORDAMIENTO : ERROR_TIPO;
}

int16_t LeeDecimal(const CampoIni &campo, float &valor) {
    const std::string &t = campo.texto;
    if (t.empty()) {
        valor = 0.0f;
        return 0;
    }
    double v = 0.0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), v);
    if (r.ptr != t.data() + t.size()) {
        return ERROR_TIPO;
    }
    if (r.ec == std::errc::result_out_of_range) {
        return ERROR_DESBORDAMIENTO;
    }
    if (r.ec != std::errc() || !std::isfinite(v)) {
        return ERROR_TIPO; // "nan" and "inf" are no numbers of the file
    }
    if (std::fabs(v) > std::numeric_limits<float>::max()) {
        return ERROR_DESBORDAMIENTO;
    }
    valor = static_cast<float>(v);
    return 0;
}

std::string LineaHistorico(const RegistroHistorico &r) {
    return LineaIni({CampoCadena(r.Fecha), CampoCadena(r.Hora), CampoCadena(r.Imagen),
                     CampoNumero(r.AnchoPuzzle), CampoNumero(r.AltoPuzzle),
                     CampoNumero(r.PiezasPorLado), CampoNumero(r.TipoPieza),
                     CampoNumero(r.NroPiezas), CampoNumero(r.AnchoPieza), CampoNumero(r.AltoPieza),
                     CampoDecimal(r.Dificultad), CampoNumero(r.Segundos),
                     CampoNumero(r.FactorPegado), CampoCadena(r.Nombre)});
}
