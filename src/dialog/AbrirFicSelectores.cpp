// AbrirFic's selectors: the list of grids, the shape and colour boxes with
// their red marks, and the two-state selectors.
#include <algorithm>
#include <cstdlib>

#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/Rejillas.h"
#include "panels/Paneles.h"
#include "raster/Raster.h"
#include "services/Esperas.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

constexpr Color GRIS = 0xC0C0C0;
constexpr Color GRIS_OSCURO = 0x808080;
constexpr Color AZUL = 0xFF0000;
constexpr int32_t LADO_MINIMO = 3, LADO_MAXIMO = 20;

bool EnLlave(float x, float y) {
    return x >= 4 && x <= 33 && y >= 18 && y <= 37;
}

} // namespace

// Offers every grid whose cells are 24 to 140 pixels on both sides and
// selects again the one nearest the present grid, the larger of two equally
// near. A picture that lets no grid through (a narrow strip that the zoom
// rules still accept) leaves the list empty and nothing selected; the grid
// is then only kept within 3..20, so that whatever is dealt has a grid the
// cutting knows.
void FormAbrirFic::CargaLisNroPiezas() {
    Lis_NroPiezas.Clear();
    const std::vector<int16_t> ofrecidas =
        RejillasOfrecidas(teselari.Pic_Origin.Ancho(), teselari.Pic_Origin.Alto());
    for (int16_t n : ofrecidas) {
        Lis_NroPiezas.AddItem(PiezasDobles == 0 ? CadenaFija(TextoNroPiezas[n], 14)
                                                : CadenaFija(TextoNroPiezas[n + 20], 18));
    }
    const int32_t indice = RejillaCercana(ofrecidas, PiezasPorLado);
    const int16_t cercano =
        indice >= 0
            ? ofrecidas[static_cast<size_t>(indice)]
            : static_cast<int16_t>(std::clamp<int32_t>(PiezasPorLado, LADO_MINIMO, LADO_MAXIMO));
    if (cercano != PiezasPorLado) {
        PiezasPorLado = cercano;
        CalculaPiezas();
    }
    if (ImagenValida == FALSO || indice < 0) {
        return;
    }
    Lis_NroPiezas.PonListIndex(indice);
}

void FormAbrirFic::Lis_NroPiezas_Click() {
    if (CargandoDialogo == FALSO && RellenandoLista == FALSO) {
        ReproduceSonido(Clips::Lista);
    }
    const std::string fila = Lis_NroPiezas.Text();
    const int lado = Redondea(std::atof(fila.substr(0, 2).c_str()));
    if (lado >= LADO_MINIMO && lado <= LADO_MAXIMO) {
        PiezasPorLado = static_cast<int16_t>(lado);
    }
    CalculaPiezas();
}

void FormAbrirFic::Pic_TipPuz_Click(int16_t Index) {
    if (Index < 0 || Index > 5) {
        return;
    }
    if (Index != TipoPieza && Pic_TipPuz[Index].Enabled) {
        ReproduceSonido(Clips::Tecla);
    }
    TipoPieza = Index;
    PiezasDobles = Index > 1 ? 1 : 0;
    Rec_MarcaTip.Move(Pic_TipPuz[Index].Left - 2, Pic_TipPuz[Index].Top - 2);
    Pic_TipPuz[Index].MousePointer = PUNTERO_NORMAL;
    CargaLisNroPiezas();
}

void FormAbrirFic::Pic_ColFon_Click(int16_t Index) {
    if (Index < 0 || Index > 5) {
        return;
    }
    if (Index != ColorFondo) {
        ReproduceSonido(Clips::Tecla);
    }
    ColorFondo = Index;
    Rec_MarcaCol.Move(Pic_ColFon[Index].Left - 2, Pic_ColFon[Index].Top - 2);
    Pic_ColFon[Index].MousePointer = PUNTERO_NORMAL;
}

// The chosen box shows the plain arrow, the others the hand.
void FormAbrirFic::Pic_TipPuz_MouseMove(int16_t Index, int16_t, int16_t, float, float) {
    if (Index < 0 || Index > 5) {
        return;
    }
    CuadroImagen &c = Pic_TipPuz[Index];
    if (c.Enabled && c.MousePointer == PUNTERO_NORMAL && Index != TipoPieza) {
        PonCursor(c, "ManoIndice");
    }
}

void FormAbrirFic::Pic_ColFon_MouseMove(int16_t Index, int16_t, int16_t, float, float) {
    if (Index < 0 || Index > 5) {
        return;
    }
    CuadroImagen &c = Pic_ColFon[Index];
    if (c.MousePointer == PUNTERO_NORMAL && Index != ColorFondo) {
        PonCursor(c, "ManoIndice");
    }
}

// A box from (x, y) of w x h has the corners (x, y) and (x + w, y + h).
void FormAbrirFic::DibujaSelector(const std::string &Titulo, int16_t Tipo, int16_t Valor,
                                  Superficie &Pic) {
    BitBlt(Pic, 4, 18, 29, 20, Pic_BmpVario, 258, 1, SRCCOPY);
    Pic.Caja(0, 7, 175, 40, COLOR_BLANCO);
    Pic.Caja(1, 8, 176, 41, GRIS_OSCURO);
    const int32_t w = static_cast<int32_t>(Pic.TextWidth(Titulo));
    const int32_t x = Redondea((175 - w) / 2.0);
    Pic.CajaLlena(x - 2, 7, x - 2 + w + 4, 7 + 2, GRIS);
    Pic.CurrentX = x;
    Pic.CurrentY = 0;
    Pic.ForeColor = COLOR_BLANCO;
    Pic.Print(Titulo);
    Pic.CurrentX = x + 1;
    Pic.CurrentY = 1;
    Pic.ForeColor = AZUL;
    Pic.Print(Titulo);
    Pic.Caja(35, 18, 35 + 138, 18 + 20, COLOR_BLANCO);
    Pic.Caja(36, 19, 36 + 136, 19 + 18, COLOR_BLANCO);
    Pic.Line(35, 18, 35 + 138, 18, GRIS_OSCURO);
    Pic.Line(36, 19, 36 + 136, 19, GRIS_OSCURO);
    Pic.Line(35, 18, 35, 18 + 20, GRIS_OSCURO);
    Pic.Line(36, 19, 36, 19 + 18, GRIS_OSCURO);
    Pic.CurrentX = 40;
    Pic.CurrentY = 21;
    Pic.ForeColor = COLOR_NEGRO;
    Pic.Letra.Negrita = true;
    if (Tipo >= 1 && Tipo <= 3 && Valor >= 0 && Valor <= 3) {
        Pic.Print(TextosSelector[Tipo][Valor]);
    }
}

// One step of a selector; a blank text after the last state leads back to
// the first, so two states run 1, 2, 1.
void FormAbrirFic::HaPulsado(int16_t &Valor, int16_t Tipo, Superficie &Pic) {
    Valor = static_cast<int16_t>(Valor + 1);
    ReproduceSonido(Clips::Selector);
    if (Valor < 0 || Valor > 3 || TextosSelector[Tipo][Valor] == std::string(12, ' ')) {
        Valor = 1;
    }
    BitBlt(Pic, 4, 18, 29, 20, Pic_BmpVario, 288, 1, SRCCOPY);
    Pic.CajaLlena(37, 20, 37 + 133, 20 + 15, GRIS);
    Refresca();
    EsperaTiempo(45);
    BitBlt(Pic, 4, 18, 29, 20, Pic_BmpVario, 258, 1, SRCCOPY);
    Pic.CurrentX = 40;
    Pic.CurrentY = 21;
    Pic.Print(TextosSelector[Tipo][Valor]);
}

void FormAbrirFic::Pic_Cronometro_MouseDown(int16_t, int16_t, float X, float Y) {
    if (EnLlave(X, Y)) {
        HaPulsado(Cronometro, 1, Pic_Cronometro);
    }
}

void FormAbrirFic::Pic_Sonido_MouseDown(int16_t, int16_t, float X, float Y) {
    if (EnLlave(X, Y)) {
        HaPulsado(Sonido, 2, Pic_Sonido);
    }
}

// The tooltips of both forms change at once.
void FormAbrirFic::Pic_Pistas_MouseDown(int16_t, int16_t, float X, float Y) {
    if (EnLlave(X, Y)) {
        HaPulsado(Pistas, 3, Pic_Pistas);
        ActualizaPistas();
        CompruebaPistasAbrirfic();
    }
}

void FormAbrirFic::MueveSobreSelector(CuadroImagen &pic, float X, float Y) {
    if (EnLlave(X, Y)) {
        PonManoSiNormal(pic);
    } else if (pic.MousePointer != PUNTERO_NORMAL) {
        pic.MousePointer = PUNTERO_NORMAL;
    }
}

void FormAbrirFic::Pic_Cronometro_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobreSelector(Pic_Cronometro, X, Y);
}

void FormAbrirFic::Pic_Sonido_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobreSelector(Pic_Sonido, X, Y);
}

void FormAbrirFic::Pic_Pistas_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobreSelector(Pic_Pistas, X, Y);
}
