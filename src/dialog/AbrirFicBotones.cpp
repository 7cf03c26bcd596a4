// AbrirFic's button placement page: for each command, the always-visible
// panel or the right button's one.
#include "core/PuzzGbl.h"
#include "dialog/FormAbrirFic.h"
#include "raster/Raster.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

constexpr Color GRIS_OSCURO = 0x808080;

std::string SinBlancosFinales(std::string s) {
    while (!s.empty() && s.back() == ' ') {
        s.pop_back();
    }
    return s;
}

} // namespace

void FormAbrirFic::Bot_Botones_Click() {
    for (int16_t i = 1; i <= 11; ++i) {
        Lab_Botones[i].Caption = SinBlancosFinales(TextoBotones[i]);
        BitBlt(Pic_BotLugBot[i], 3, 3, 48, 48, teselari.Pic_BmpBoton, (i - 1) * 49 + 1, 1, SRCCOPY);
        Opt_Siempre[i].Value = BotonEnSiempre[i];
        Opt_Derecho[i].Value = BotonEnDerecho[i];
    }
    BitBlt(Pic_SalirPicBotones, 4, 4, 48, 48, teselari.Pic_BmpBoton, 491, 1, SRCCOPY);
    CuadroImagen &p = Pic_LugarBotones;
    p.Move(0, 0);
    const int32_t w = p.Ancho(), h = p.Alto();
    p.Caja(0, 0, w - 1, h - 1, GRIS_OSCURO);
    p.Line(0, 0, w, 0, COLOR_BLANCO);
    p.Line(0, 0, 0, h, COLOR_BLANCO);
    p.Visible = true;
    Refresca();
}

void FormAbrirFic::Pic_SalirPicBotones_Click() {
    teselari.MousePointer = PUNTERO_ESPERA;
    ReproduceSonido(Clips::SalidaDialogo);
    for (int16_t i = 1; i <= 11; ++i) {
        BotonEnSiempre[i] = Opt_Siempre[i].Value;
        BotonEnDerecho[i] = Opt_Derecho[i].Value;
    }
    Pic_LugarBotones.Visible = false;
    Refresca();
    teselari.MousePointer = PUNTERO_NORMAL;
}

// The two options of a frame exclude each other.
void FormAbrirFic::Opt_Siempre_Click(int16_t Index) {
    if (Index >= 1 && Index <= 11) {
        Opt_Siempre[Index].Value = true;
        Opt_Derecho[Index].Value = false;
    }
}

void FormAbrirFic::Opt_Derecho_Click(int16_t Index) {
    if (Index >= 1 && Index <= 11) {
        Opt_Derecho[Index].Value = true;
        Opt_Siempre[Index].Value = false;
    }
}
