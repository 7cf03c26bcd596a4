// A hidden sorted list box: its rows stand in the platform's string order,
// which ignores the difference of upper and lower case.
//
// The order compares character by character: blanks first, then the other
// signs, the digits, the letters, and last the characters beyond the Latin
// letters. Letters compare without case and without accents, with ñ as a
// letter of its own after n, as the Spanish order has it. Rows that compare
// equal keep the order in which they were added. Each row carries a number
// of its own (ItemData), as a list box row does.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ListaOrdenada {
  public:
    void AddItem(const std::string &texto, int32_t dato = 0);
    void Clear();
    int32_t ListCount() const { return static_cast<int32_t>(filas_.size()); }
    // Row i, from 0, in order; empty and 0 out of range.
    const std::string &List(int32_t i);
    int32_t ItemData(int32_t i);

  private:
    struct Fila {
        std::u32string clave; // the weights the order compares
        std::string texto;
        int32_t dato;
    };
    std::vector<Fila> filas_;
    bool ordenada_ = true;
    void Ordena();
};

// Whether a comes before b in the list's order.
bool PrecedeEnLista(const std::string &a, const std::string &b);
