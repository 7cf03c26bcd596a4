#include "Opciones.h"

#include <charconv>

namespace {

constexpr int PANTALLA_MINIMA = 400;
constexpr int PANTALLA_MAXIMA = 4000;

// A whole number written entirely in decimal, or nothing.
std::optional<int> NumeroEntero(const std::string &texto) {
    int valor = 0;
    const char *fin = texto.data() + texto.size();
    auto [resto, ec] = std::from_chars(texto.data(), fin, valor);
    if (texto.empty() || ec != std::errc() || resto != fin) {
        return std::nullopt;
    }
    return valor;
}

bool LeeEnRango(const std::string &nombre, const std::string &texto, int minimo, int maximo,
                int &destino, std::string &error) {
    const auto n = NumeroEntero(texto);
    if (!n || *n < minimo || *n > maximo) {
        error = nombre + " takes a whole number from " + std::to_string(minimo) + " to " +
                std::to_string(maximo) + ", not '" + texto + "'";
        return false;
    }
    destino = *n;
    return true;
}

bool LeePantalla(const std::string &texto, Opciones &o, std::string &error) {
    const auto x = texto.find('x');
    const auto ancho = NumeroEntero(texto.substr(0, x));
    const auto alto = x == std::string::npos ? std::nullopt : NumeroEntero(texto.substr(x + 1));
    if (!ancho || !alto || *ancho < PANTALLA_MINIMA || *ancho > PANTALLA_MAXIMA ||
        *alto < PANTALLA_MINIMA || *alto > PANTALLA_MAXIMA) {
        error = "--pantalla takes WIDTHxHEIGHT, each from " + std::to_string(PANTALLA_MINIMA) +
                " to " + std::to_string(PANTALLA_MAXIMA) + ", not '" + texto + "'";
        return false;
    }
    o.AnchoPantalla = *ancho;
    o.AltoPantalla = *alto;
    return true;
}

bool LeePiezas(const std::string &texto, Opciones &o, std::string &error) {
    o.Piezas.clear();
    size_t inicio = 0;
    while (true) {
        const auto coma = texto.find(',', inicio);
        const std::string trozo = texto.substr(inicio, coma - inicio);
        const auto k = NumeroEntero(trozo);
        if (!k || *k < 1) {
            error =
                "--piezas takes piece numbers from 1 up, separated by commas, not '" + texto + "'";
            return false;
        }
        o.Piezas.push_back(*k);
        if (coma == std::string::npos) {
            return true;
        }
        inicio = coma + 1;
    }
}

} // namespace

std::optional<Opciones> LeeOpciones(const std::vector<std::string> &args, std::string &error) {
    Opciones o;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string &a = args[i];
        if (a == "--ayuda" || a == "-h" || a == "--help") {
            o.Ayuda = true;
            continue;
        }
        if (a == "--muestra") {
            o.Muestra = true;
            continue;
        }
        const bool conValor = a == "--imagen" || a == "--lado" || a == "--tipo" || a == "--fondo" ||
                              a == "--pantalla" || a == "--piezas" || a == "--salida";
        if (!conValor) {
            error = "unknown argument '" + a + "'";
            return std::nullopt;
        }
        if (i + 1 >= args.size()) {
            error = a + " needs a value";
            return std::nullopt;
        }
        const std::string &v = args[++i];
        bool bien = true;
        if (a == "--imagen") {
            o.Imagen = v;
            bien = !v.empty();
            if (!bien) {
                error = "--imagen needs a file name";
            }
        } else if (a == "--lado") {
            bien = LeeEnRango(a, v, 3, 20, o.Lado, error);
        } else if (a == "--tipo") {
            bien = LeeEnRango(a, v, 0, 5, o.Tipo, error);
        } else if (a == "--fondo") {
            bien = LeeEnRango(a, v, 0, 5, o.Fondo, error);
        } else if (a == "--pantalla") {
            bien = LeePantalla(v, o, error);
        } else if (a == "--piezas") {
            bien = LeePiezas(v, o, error);
        } else {
            o.Salida = v;
            bien = !v.empty();
            if (!bien) {
                error = "--salida needs a folder name";
            }
        }
        if (!bien) {
            return std::nullopt;
        }
    }
    if (o.Muestra && !o.Imagen.empty()) {
        error = "give either --imagen or --muestra, not both";
        return std::nullopt;
    }
    return o;
}

std::string TextoUso() {
    return "usage: teselari_tablero [--imagen FILE | --muestra] [--lado N] [--tipo T]\n"
           "                        [--fondo C] [--pantalla WxH] [--piezas K1,K2,...]\n"
           "                        [--salida DIR]\n"
           "\n"
           "Cuts a picture into a puzzle with the game's engine and writes PNG pictures of\n"
           "it into DIR (default salida): imagen.png (the picture cut), casa.png (every\n"
           "piece at home), puzzle.png (the same cropped to the puzzle), barajado.png (the\n"
           "pieces dealt), cortes.png (the picture with the cut lines), and mascara_K.png\n"
           "and pieza_K.png for each piece K.\n"
           "\n"
           "  --imagen FILE   the picture to cut (PNG, JPEG, BMP, GIF...)\n"
           "  --muestra       a generated sample picture of 640x480 (the default)\n"
           "  --lado N        cells per side, 3 to 20 (default 6)\n"
           "  --tipo T        0 Rectángulos, 1 Irregulares, 2 Círculos/Rect.,\n"
           "                  3 Rectáng./Rect., 4 Elipses/Rect., 5 Estrellas/Rect. (default 1)\n"
           "  --fondo C       background: 0 white, 1 yellow, 2 green, 3 dark red, 4 blue,\n"
           "                  5 black (default 3)\n"
           "  --pantalla WxH  the screen the board is laid out for (default 1024x768)\n"
           "  --piezas LIST   the pieces whose masks are written (default: a corner, an\n"
           "                  edge and an inner piece)\n"
           "  --salida DIR    the folder for the pictures (created if missing)\n";
}
