#include "history/ListaOrdenada.h"

#include <algorithm>

namespace {

// The base letter of a Latin-1 letter, lower case; 0 for anything else.
char32_t LetraBase(char32_t c) {
    if (c >= 'A' && c <= 'Z') {
        return c - 'A' + 'a';
    }
    if (c >= 'a' && c <= 'z') {
        return c;
    }
    if (c < 0xC0 || c > 0xFF || c == 0xD7 || c == 0xF7) {
        return 0;
    }
    // À..ÿ folded to their letters; Æ, Ð, Þ, ß kept near theirs.
    static const char bases[] = "aaaaaaaceeeeiiiidnooooo_ouuuuytsaaaaaaaceeeeiiiidnooooo_ouuuuyty";
    return static_cast<char32_t>(bases[c - 0xC0]);
}

// The weight of one character: blanks, signs, digits, letters, the rest.
char32_t Peso(char32_t c) {
    if (c == ' ' || c == '\t') {
        return 1;
    }
    if (c == 0xD1 || c == 0xF1) { // Ñ, ñ: a letter after n
        return 0x1000 + 2 * ('n' - 'a') + 1;
    }
    if (const char32_t base = LetraBase(c); base != 0) {
        return 0x1000 + 2 * (base - 'a');
    }
    if (c >= '0' && c <= '9') {
        return 0x800 + (c - '0');
    }
    return c < 0x800 ? c + 2 : 0x2000 + c;
}

// The weights of a UTF-8 text; a byte that starts no character weighs as
// itself among the signs.
std::u32string Pesos(const std::string &texto) {
    std::u32string pesos;
    pesos.reserve(texto.size());
    for (size_t i = 0; i < texto.size();) {
        const auto b = static_cast<unsigned char>(texto[i]);
        char32_t c = b;
        size_t largo = 1;
        if (b >= 0xC2 && b <= 0xDF && i + 1 < texto.size()) {
            c = ((b & 0x1Fu) << 6) | (static_cast<unsigned char>(texto[i + 1]) & 0x3Fu);
            largo = 2;
        } else if (b >= 0xE0 && b <= 0xEF && i + 2 < texto.size()) {
            c = ((b & 0x0Fu) << 12) | ((static_cast<unsigned char>(texto[i + 1]) & 0x3Fu) << 6) |
                (static_cast<unsigned char>(texto[i + 2]) & 0x3Fu);
            largo = 3;
        } else if (b >= 0xF0 && b <= 0xF4 && i + 3 < texto.size()) {
            c = 0x10000;
            largo = 4;
        }
        pesos += Peso(c);
        i += largo;
    }
    return pesos;
}

} // namespace

bool PrecedeEnLista(const std::string &a, const std::string &b) {
    return Pesos(a) < Pesos(b);
}

void ListaOrdenada::AddItem(const std::string &texto, int32_t dato) {
    filas_.push_back({Pesos(texto), texto, dato});
    ordenada_ = false;
}

void ListaOrdenada::Clear() {
    filas_.clear();
    ordenada_ = true;
}

void ListaOrdenada::Ordena() {
    if (!ordenada_) {
        std::stable_sort(filas_.begin(), filas_.end(),
                         [](const Fila &a, const Fila &b) { return a.clave < b.clave; });
        ordenada_ = true;
    }
}

const std::string &ListaOrdenada::List(int32_t i) {
    static const std::string vacio;
    Ordena();
    return i >= 0 && i < ListCount() ? filas_[static_cast<size_t>(i)].texto : vacio;
}

int32_t ListaOrdenada::ItemData(int32_t i) {
    Ordena();
    return i >= 0 && i < ListCount() ? filas_[static_cast<size_t>(i)].dato : 0;
}
