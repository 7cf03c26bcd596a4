// Layout of the two button panels, and their tooltips.
#include "panels/Paneles.h"

#include <cmath>

#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"

using namespace PuzzGbl;

namespace {

// Every button takes 56 pixels and a gap of 2.
constexpr int32_t PASO_BOTON = 58;
constexpr int32_t LADO_BOTON = 56;
constexpr Color GRIS_SOMBRA = 0x808080;

int32_t CuentaBotones(const std::array<bool, 12> &en_panel) {
    int32_t n = 0;
    for (int i = 1; i <= 11; ++i) {
        n += en_panel[i] ? 1 : 0;
    }
    return n;
}

// The height left above the lower scroll bar.
int32_t AltoUtil() {
    return AltoPantalla - teselari.BarraHor.Height;
}

// The grey box with its light top and left edges.
void DibujaMarco(Superficie &panel, int32_t ancho, int32_t alto) {
    panel.Caja(0, 0, ancho - 1, alto - 1, GRIS_SOMBRA);
    panel.Line(0, 0, ancho, 0, COLOR_BLANCO);
    panel.Line(0, 0, 0, alto, COLOR_BLANCO);
}

std::string SinBlancos(const std::string &texto) {
    const size_t desde = texto.find_first_not_of(' ');
    if (desde == std::string::npos) {
        return {};
    }
    return texto.substr(desde, texto.find_last_not_of(' ') - desde + 1);
}

} // namespace

void DibujaBotonesSiempre() {
    FormTeselari &f = teselari;
    const int32_t n = CuentaBotones(BotonEnSiempre);
    const int32_t b = f.Pic_BSInfo.Alto();
    int32_t alto = n * PASO_BOTON + 6 + b;
    int32_t columnas = 1;
    if (AltoUtil() < alto) {
        alto = ((n + 1) / 2) * PASO_BOTON + 6 + b;
        columnas = 2;
    }
    const int32_t ancho = columnas * PASO_BOTON + 4;
    AuxColumna = static_cast<float>(AnchoPantalla - f.BarraVer.Width - ancho);
    const int32_t izquierda = static_cast<int32_t>(AuxColumna);

    int32_t x = 3, y = 3;
    for (int16_t i = 1; i <= 11; ++i) {
        CuadroImagen &boton = f.Pic_BotonSiempre[i];
        boton.Visible = false;
        if (!BotonEnSiempre[i]) {
            continue;
        }
        boton.Visible = true;
        DibuBot(i, boton);
        if (y + LADO_BOTON >= alto) {
            x = 61;
            y = 3;
        }
        boton.Move(x, y);
        y += PASO_BOTON;
    }

    f.Pic_BSInfo.CambiaTamano(columnas == 2 ? 114 : 56, b);
    f.Pic_BSInfo.Move(3, alto - 3 - b);

    CuadroImagen &panel = f.Pic_BotonesSiempre;
    panel.Cls();
    panel.Move(izquierda, 0, ancho, alto);
    DibujaMarco(panel, ancho, alto);
    ActualizaBSInfo();

    // The panel never covers the chronometer.
    const int32_t limite = izquierda - f.Pic_Cronome.Ancho();
    if (limite < f.Pic_Cronome.Left) {
        f.Pic_Cronome.Left = limite;
    }
}

void DibujaBotonesDerecho(float x, float y) {
    FormTeselari &f = teselari;
    const int32_t n = CuentaBotones(BotonEnDerecho);
    if (n == 0) {
        return;
    }
    int32_t alto = n * PASO_BOTON + 3;
    int32_t columnas = 1;
    if (AltoUtil() < alto) {
        alto = ((n + 1) / 2) * PASO_BOTON + 3;
        columnas = 2;
    }
    if (static_cast<float>(AltoUtil() - alto) < y) {
        y = static_cast<float>(AltoUtil() - alto);
    }
    const int32_t ancho = columnas * PASO_BOTON + 3;
    const int32_t ancho_util = AnchoPantalla - f.BarraVer.Width;
    if (static_cast<float>(ancho_util - ancho) < x) {
        x = static_cast<float>(ancho_util - ancho);
    }

    int32_t bx = 3, by = 3;
    for (int16_t i = 1; i <= 11; ++i) {
        CuadroImagen &boton = f.Pic_BotonDerecho[i];
        boton.Visible = false;
        if (!BotonEnDerecho[i]) {
            continue;
        }
        boton.Visible = true;
        DibuBot(i, boton);
        if (by >= alto) {
            bx = 61;
            by = 3;
        }
        boton.Move(bx, by);
        by += PASO_BOTON;
    }

    CuadroImagen &panel = f.Pic_BotonesDerecho;
    // Cleared first, so that a panel that changed its size since the last
    // time keeps nothing of the old frame.
    panel.Cls();
    panel.Move(x, y, ancho, alto);
    DibujaMarco(panel, ancho, alto);
    panel.Visible = true;
}

void ActualizaPistas() {
    FormTeselari &f = teselari;
    for (int i = 1; i <= 11; ++i) {
        const std::string texto = Pistas == 1 ? SinBlancos(TextoBotones[i]) : std::string();
        f.Pic_BotonSiempre[i].ToolTipText = texto;
        f.Pic_BotonDerecho[i].ToolTipText = texto;
    }
}
