#include "history/Formatos.h"

#include <charconv>
#include <cmath>

namespace {

// The value in units of its last decimal, rounded half away from zero. A
// single times a power of ten up to 10^3 is exact in a double, so the
// rounding sees the value itself.
bool Escalado(double valor, int decimales, int64_t &unidades) {
    const double escala = std::pow(10.0, decimales);
    const double e = std::round(valor * escala);
    if (!std::isfinite(e) || std::fabs(e) > 9.0e15) {
        return false;
    }
    unidades = static_cast<int64_t>(e);
    return true;
}

std::string Fijo(double valor, int decimales) {
    char texto[400];
    const auto r =
        std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::fixed, decimales);
    return r.ec == std::errc() ? std::string(texto, r.ptr) : std::string("0");
}

} // namespace

std::string FormatoEntero(int64_t valor) {
    return std::to_string(valor);
}

std::string FormatoCeros(double valor, int enteros, int decimales) {
    int64_t unidades = 0;
    if (!Escalado(valor, decimales, unidades)) {
        return Fijo(valor, decimales);
    }
    const bool negativo = unidades < 0;
    const uint64_t absoluto =
        negativo ? 0 - static_cast<uint64_t>(unidades) : static_cast<uint64_t>(unidades);
    std::string cifras = std::to_string(absoluto);
    const size_t minimo = static_cast<size_t>(enteros + decimales);
    if (cifras.size() < minimo) {
        cifras.insert(0, minimo - cifras.size(), '0');
    }
    if (decimales > 0) {
        cifras.insert(cifras.size() - static_cast<size_t>(decimales), 1, '.');
    }
    return negativo ? "-" + cifras : cifras;
}

std::string FormatoTresDecimales(double valor) {
    return FormatoCeros(valor, 1, 3);
}

std::string FormatoArrobas(int64_t valor, size_t ancho) {
    std::string t = std::to_string(valor);
    if (t.size() < ancho) {
        t.insert(0, ancho - t.size(), ' ');
    }
    return t;
}

std::string NombreTipoPieza(int16_t tipo) {
    static const char *const nombres[] = {"Rectángulos",    "Irregulares",   "Círculos/Rect.",
                                          "Rectáng./Rect.", "Elipses/Rect.", "Estrellas/Rect."};
    return tipo >= 0 && tipo <= 5 ? nombres[tipo] : "";
}
