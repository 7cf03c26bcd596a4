// teselari_tablero: cuts a picture with the game's engine and writes the
// board as PNG pictures, for developers to look at.
#include <iostream>
#include <string>
#include <vector>

#include "Opciones.h"
#include "Tablero.h"

int main(int argc, char **argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    std::string error;
    const auto opciones = LeeOpciones(args, error);
    if (!opciones) {
        std::cerr << "teselari_tablero: " << error << "\n\n" << TextoUso();
        return 1;
    }
    if (opciones->Ayuda) {
        std::cout << TextoUso();
        return 0;
    }
    return EjecutaTablero(*opciones, std::cout, std::cerr);
}
