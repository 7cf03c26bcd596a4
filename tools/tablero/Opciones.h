// The command line of the board tool.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct Opciones {
    std::string Imagen;       // picture file; empty: the generated sample
    bool Muestra = false;     // --muestra was given
    int Lado = 6;             // cells per side, 3..20
    int Tipo = 1;             // the cut, 0..5
    int Fondo = 3;            // background colour index, 0..5
    int AnchoPantalla = 1024; // the screen the board is laid out for
    int AltoPantalla = 768;
    std::vector<int> Piezas;       // piece numbers to mask; empty: a chosen few
    std::string Salida = "salida"; // folder of the pictures
    bool Ayuda = false;            // --ayuda or -h: print the usage only
};

// Reads the arguments (without the program's name). On an error returns
// nothing and leaves a one-line reason in `error`.
std::optional<Opciones> LeeOpciones(const std::vector<std::string> &args, std::string &error);

// How to call the tool, several lines.
std::string TextoUso();
