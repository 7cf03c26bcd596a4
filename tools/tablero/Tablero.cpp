#include "Tablero.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "Imagenes.h"
#include "Muestra.h"
#include "board/Barajar.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

// The always-visible panel: one column of buttons at the right edge, left of
// the vertical scroll bar.
constexpr int ANCHO_BARRA = 16;
constexpr int ANCHO_PANEL = 62;
constexpr int ALTO_PANEL = 667;

// The smallest piece the tool cuts, in pixels per side.
constexpr int PIEZA_MINIMA = 8;
// The largest picture it takes, in pixels per side.
constexpr int IMAGEN_MAXIMA = 4096;
// The margin around the puzzle in puzzle.png.
constexpr int MARGEN_RECORTE = 8;

class Escritor {
  public:
    Escritor(const std::filesystem::path &carpeta, std::ostream &informe, std::ostream &errores)
        : carpeta_(carpeta), informe_(informe), errores_(errores) {}

    void Escribe(const Superficie &s, const std::string &nombre) {
        const std::string ruta = (carpeta_ / nombre).string();
        std::string error;
        if (EscribePng(s, ruta, error)) {
            informe_ << ruta << '\n';
        } else {
            errores_ << "teselari_tablero: " << ruta << ": " << error << '\n';
            fallos_ = true;
        }
    }
    bool Fallos() const { return fallos_; }

  private:
    std::filesystem::path carpeta_;
    std::ostream &informe_;
    std::ostream &errores_;
    bool fallos_ = false;
};

// The home board cut to the puzzle and a margin beyond its frame.
Superficie RecortaPuzzle(const Superficie &tablero) {
    const int32_t w = std::min<int32_t>(AnchoPuzzle + MARGEN_RECORTE, tablero.Ancho());
    const int32_t h = std::min<int32_t>(AltoPuzzle + MARGEN_RECORTE, tablero.Alto());
    Superficie recorte(std::max(w, 0), std::max(h, 0));
    BitBlt(recorte, 0, 0, w, h, tablero, 0, 0, SRCCOPY);
    return recorte;
}

// The mask and the image of piece k. A rectangle needs no mask: its mask is
// the whole box in black and its image the cell of the picture.
void EscribePieza(Escritor &escritor, int k) {
    FormTeselari &f = teselari;
    const int posicion = PosicionDePieza(k);
    if (posicion == 0) {
        return;
    }
    const std::string sufijo = std::to_string(k) + ".png";
    if (TipoPieza != 0) {
        EnmascaraPieza(static_cast<int16_t>(posicion));
        escritor.Escribe(f.Pic_PiezaMascara, "mascara_" + sufijo);
        escritor.Escribe(f.Pic_PiezaImagen, "pieza_" + sufijo);
        return;
    }
    const Pieza &q = Piezas[k];
    Superficie mascara(AnchoPieza, AltoPieza, COLOR_NEGRO);
    Superficie imagen(AnchoPieza, AltoPieza);
    BitBlt(imagen, 0, 0, AnchoPieza, AltoPieza, f.Pic_Bitmap, q.XCorrecta, q.YCorrecta, SRCCOPY);
    escritor.Escribe(mascara, "mascara_" + sufijo);
    escritor.Escribe(imagen, "pieza_" + sufijo);
}

} // namespace

void CargaEnMotor(const Opciones &o, const QImage &imagen) {
    RestauraValoresIniciales();
    AnchoPantalla = static_cast<int16_t>(o.AnchoPantalla);
    AltoPantalla = static_cast<int16_t>(o.AltoPantalla);
    PiezasPorLado = static_cast<int16_t>(o.Lado);
    TipoPieza = static_cast<int16_t>(o.Tipo);
    PiezasDobles = TipoPieza >= 2 ? 1 : 0;
    ColorFondo = static_cast<int16_t>(o.Fondo);
    Velocidad = 100;
    VueltasPorSegundo = 0;
    ModeloVisible = false;
    CopiaEnSuperficie(imagen, teselari.Pic_Origin);
    teselari.Pic_BotonesSiempre.Move(AnchoPantalla - ANCHO_BARRA - ANCHO_PANEL, 0, ANCHO_PANEL,
                                     ALTO_PANEL);
}

std::vector<int> PiezasElegidas(const std::vector<int> &pedidas) {
    std::vector<int> elegidas;
    if (!pedidas.empty()) {
        for (const int k : pedidas) {
            elegidas.push_back(std::clamp(k, 1, std::max<int>(NroPiezas, 1)));
        }
    } else {
        // Piece n*n - (n*row + col) has its home in cell (row, col).
        const int n = PiezasPorLado;
        const int celdas = n * n;
        elegidas = {1, celdas - n / 2, celdas - (n * (n / 2) + n / 2)};
        if (PiezasDobles != 0) {
            elegidas.push_back(elegidas.back() + NroPiezas / 2);
        }
    }
    std::vector<int> sinRepetir;
    for (const int k : elegidas) {
        if (std::find(sinRepetir.begin(), sinRepetir.end(), k) == sinRepetir.end()) {
            sinRepetir.push_back(k);
        }
    }
    return sinRepetir;
}

int PosicionDePieza(int k) {
    for (size_t i = 1; i < OrdenPiezas.size(); ++i) {
        if (OrdenPiezas[i] == k) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

int EjecutaTablero(const Opciones &o, std::ostream &informe, std::ostream &errores) {
    QImage imagen;
    if (o.Imagen.empty()) {
        imagen = DibujaMuestra();
    } else {
        std::string error;
        auto leida = LeeImagen(o.Imagen, error);
        if (!leida) {
            errores << "teselari_tablero: " << error << '\n';
            return 1;
        }
        imagen = std::move(*leida);
    }
    if (imagen.width() > IMAGEN_MAXIMA || imagen.height() > IMAGEN_MAXIMA) {
        errores << "teselari_tablero: the picture is " << imagen.width() << "x" << imagen.height()
                << ", larger than " << IMAGEN_MAXIMA << " pixels per side\n";
        return 1;
    }
    if (imagen.width() < PIEZA_MINIMA * o.Lado || imagen.height() < PIEZA_MINIMA * o.Lado) {
        errores << "teselari_tablero: the picture is " << imagen.width() << "x" << imagen.height()
                << ", too small for " << o.Lado << " pieces per side (at least "
                << PIEZA_MINIMA * o.Lado << " pixels per side)\n";
        return 1;
    }

    const std::filesystem::path carpeta(o.Salida);
    std::error_code ec;
    std::filesystem::create_directories(carpeta, ec);
    if (ec || !std::filesystem::is_directory(carpeta)) {
        errores << "teselari_tablero: cannot make the folder " << o.Salida
                << (ec ? ": " + ec.message() : std::string()) << '\n';
        return 1;
    }
    Escritor escritor(carpeta, informe, errores);

    CargaEnMotor(o, imagen);
    FormTeselari &f = teselari;

    escritor.Escribe(f.Pic_Origin, "imagen.png");

    // Every piece at home: a restored session only paints.
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    ColocaPiezasEnCasa();
    Barajar();
    escritor.Escribe(f.Pic_Imagen, "casa.png");
    escritor.Escribe(RecortaPuzzle(f.Pic_Imagen), "puzzle.png");

    // The deal.
    SesionRestaurando = FALSO;
    PreparaBitmap();
    escritor.Escribe(f.Pic_Imagen, "barajado.png");
    escritor.Escribe(f.Pic_Bitmap, "cortes.png");

    for (const int k : PiezasElegidas(o.Piezas)) {
        EscribePieza(escritor, k);
    }
    return escritor.Fallos() ? 1 : 0;
}
