#include "core/TextoIni.h"

#include <array>
#include <charconv>

namespace {

// The characters of bytes 0x80..0x9F; 0 where the code page defines none.
constexpr std::array<char32_t, 32> ZONA_80 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t CaracterDeByte(unsigned char b) {
    if (b >= 0x80 && b <= 0x9F && ZONA_80[b - 0x80] != 0) {
        return ZONA_80[b - 0x80];
    }
    return b;
}

// The byte of a character, or '?' when the code page lacks it.
char ByteDeCaracter(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (size_t i = 0; i < ZONA_80.size(); ++i) {
        if (ZONA_80[i] == c || (ZONA_80[i] == 0 && c == 0x80 + i)) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

void AnadeUtf8(std::string &s, char32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xF0 | (c >> 18));
        s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Decodes one UTF-8 character at i and advances i; nothing for a byte that
// starts no valid sequence (i then moves past that byte alone).
std::optional<char32_t> SiguienteUtf8(std::string_view s, size_t &i) {
    const unsigned char b = static_cast<unsigned char>(s[i]);
    size_t largo = 0;
    char32_t c = 0;
    if (b < 0x80) {
        ++i;
        return b;
    } else if (b >= 0xC2 && b <= 0xDF) {
        largo = 2;
        c = b & 0x1F;
    } else if (b >= 0xE0 && b <= 0xEF) {
        largo = 3;
        c = b & 0x0F;
    } else if (b >= 0xF0 && b <= 0xF4) {
        largo = 4;
        c = b & 0x07;
    } else {
        ++i;
        return std::nullopt;
    }
    if (i + largo > s.size()) {
        ++i;
        return std::nullopt;
    }
    for (size_t k = 1; k < largo; ++k) {
        const unsigned char m = static_cast<unsigned char>(s[i + k]);
        if ((m & 0xC0) != 0x80) {
            ++i;
            return std::nullopt;
        }
        c = (c << 6) | (m & 0x3F);
    }
    const char32_t minimo = largo == 2 ? 0x80 : largo == 3 ? 0x800 : 0x10000;
    if (c < minimo || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++i;
        return std::nullopt;
    }
    i += largo;
    return c;
}

bool EsBlanco(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

std::string AWindows1252(std::string_view utf8) {
    std::string r;
    r.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        const auto c = SiguienteUtf8(utf8, i);
        r += c ? ByteDeCaracter(*c) : '?';
    }
    return r;
}

std::string DeWindows1252(std::string_view bytes) {
    std::string r;
    r.reserve(bytes.size());
    for (char b : bytes) {
        AnadeUtf8(r, CaracterDeByte(static_cast<unsigned char>(b)));
    }
    return r;
}

std::string CampoNumero(int64_t valor) {
    return std::to_string(valor);
}

bool CabeEnWindows1252(std::string_view utf8) {
    for (size_t i = 0; i < utf8.size();) {
        const auto c = SiguienteUtf8(utf8, i);
        if (c && ByteDeCaracter(*c) == '?' && *c != '?') {
            return false;
        }
    }
    return true;
}

bool EsUtf8ConAcentos(std::string_view bytes) {
    bool alto = false;
    for (size_t i = 0; i < bytes.size();) {
        alto = alto || static_cast<unsigned char>(bytes[i]) >= 0x80;
        if (!SiguienteUtf8(bytes, i)) {
            return false;
        }
    }
    return alto;
}

std::string BytesDeCadena(std::string_view utf8) {
    if (CabeEnWindows1252(utf8)) {
        std::string bytes = AWindows1252(utf8);
        if (!EsUtf8ConAcentos(bytes)) {
            return bytes;
        }
    }
    // Beyond the code page, or bytes the reader would take for UTF-8: the
    // string goes as UTF-8, which the reader recognises. A byte that is not
    // valid UTF-8 becomes "?".
    return EsUtf8ConAcentos(utf8) ? std::string(utf8) : AWindows1252(utf8);
}

std::string CadenaDeBytes(std::string_view bytes) {
    return EsUtf8ConAcentos(bytes) ? std::string(bytes) : DeWindows1252(bytes);
}

std::string CampoCadena(std::string_view utf8) {
    return '"' + BytesDeCadena(utf8) + '"';
}

std::string CampoLogico(bool valor) {
    return valor ? "#TRUE#" : "#FALSE#";
}

std::string LineaIni(const std::vector<std::string> &campos) {
    std::string r;
    for (size_t i = 0; i < campos.size(); ++i) {
        if (i > 0) {
            r += ',';
        }
        r += campos[i];
    }
    return r + "\r\n";
}

std::vector<std::string> DivideLineas(std::string_view contenido) {
    std::vector<std::string> lineas;
    size_t inicio = 0;
    while (inicio < contenido.size()) {
        size_t fin = contenido.find('\n', inicio);
        const size_t siguiente = fin == std::string_view::npos ? contenido.size() : fin + 1;
        if (fin == std::string_view::npos) {
            fin = contenido.size();
        }
        std::string_view linea = contenido.substr(inicio, fin - inicio);
        if (!linea.empty() && linea.back() == '\r') {
            linea.remove_suffix(1);
        }
        lineas.emplace_back(linea);
        inicio = siguiente;
    }
    return lineas;
}

std::vector<CampoIni> DivideCampos(std::string_view linea) {
    std::vector<CampoIni> campos;
    if (linea.empty()) {
        return campos;
    }
    size_t i = 0;
    while (true) {
        while (i < linea.size() && EsBlanco(linea[i])) {
            ++i;
        }
        CampoIni campo;
        if (i < linea.size() && linea[i] == '"') {
            const size_t cierre = linea.find('"', i + 1);
            campo.entrecomillado = true;
            campo.cerrado = cierre != std::string_view::npos;
            const size_t fin = campo.cerrado ? cierre : linea.size();
            campo.texto = std::string(linea.substr(i + 1, fin - i - 1));
            i = campo.cerrado ? cierre + 1 : linea.size();
            // What stands between the closing quote and the comma is dropped.
            const size_t coma = linea.find(',', i);
            i = coma == std::string_view::npos ? linea.size() : coma;
        } else {
            const size_t coma = linea.find(',', i);
            const size_t fin = coma == std::string_view::npos ? linea.size() : coma;
            size_t ultimo = fin;
            while (ultimo > i && EsBlanco(linea[ultimo - 1])) {
                --ultimo;
            }
            campo.texto = std::string(linea.substr(i, ultimo - i));
            i = fin;
        }
        campos.push_back(std::move(campo));
        if (i >= linea.size()) {
            break;
        }
        ++i; // the comma
    }
    return campos;
}

std::optional<int64_t> LeeNumero(const CampoIni &campo, int64_t minimo, int64_t maximo) {
    if (campo.entrecomillado || campo.texto.empty()) {
        return std::nullopt;
    }
    const char *p = campo.texto.data();
    const char *fin = p + campo.texto.size();
    int64_t valor = 0;
    const auto [resto, ec] = std::from_chars(p, fin, valor);
    if (ec != std::errc() || resto != fin || valor < minimo || valor > maximo) {
        return std::nullopt;
    }
    return valor;
}

std::optional<bool> LeeLogico(const CampoIni &campo) {
    if (campo.entrecomillado) {
        return std::nullopt;
    }
    if (campo.texto == "#TRUE#") {
        return true;
    }
    if (campo.texto == "#FALSE#") {
        return false;
    }
    return std::nullopt;
}

std::optional<std::string> LeeCadena(const CampoIni &campo) {
    if (!campo.cerrado) {
        return std::nullopt;
    }
    return CadenaDeBytes(campo.texto);
}

bool CadenaEscribible(std::string_view utf8) {
    return utf8.find_first_of("\"\r\n") == std::string_view::npos;
}
