#include "services/Careta.h"

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "raster/Raster.h"
#include "services/Esperas.h"

using namespace PuzzGbl;

namespace {

constexpr Color GRIS_CLARO = 0xC0C0C0;
constexpr Color GRIS_OSCURO = 0x808080;

// The block enters at the viewport's lower edge and has just left it at
// the top when the offset falls below -200.
constexpr int32_t Y_ENTRADA = ALTO_CARETA;
constexpr int32_t Y_SALIDA = -200;
constexpr int16_t PASADAS = 2;
// The pause of one frame, in hundredths at Velocidad 0.
constexpr int32_t PAUSA_FOTOGRAMA = 7;

} // namespace

FormCareta::FormCareta()
    : Pic_Todos(ANCHO_TODOS, ALTO_TODOS, COLOR_NEGRO),
      Pic_Careta(ANCHO_CARETA, ALTO_CARETA, COLOR_NEGRO), Pic_Logo(96, 44, COLOR_NEGRO),
      Pic_Icono(32, 32, COLOR_NEGRO), Pic_Bmp(241, 87, COLOR_NEGRO) {
    Pic_Careta.Move(BORDE_TODOS + 15, BORDE_TODOS + 29);
    DibujaMarco();
}

// The flat border, and the frame about the viewport: a light outline with
// its top and left sides darker, as a sunken edge.
void FormCareta::DibujaMarco() {
    Superficie &t = Pic_Todos;
    const int32_t b = BORDE_TODOS;
    t.Caja(0, 0, ANCHO_TODOS - 1, ALTO_TODOS - 1, GRIS_CLARO);
    t.Caja(b + 13, b + 27, b + 13 + 292 - 1, b + 27 + 154 - 1, GRIS_CLARO); // Shape1
    t.Line(b + 13, b + 27, b + 13 + 290, b + 27, GRIS_OSCURO);              // Line1
    t.Line(b + 13, b + 27, b + 13, b + 27 + 152, GRIS_OSCURO);              // Line2
}

void FormCareta::Form_Load(int32_t anchoPantalla, int32_t altoPantalla) {
    Width = anchoPantalla;
    Height = altoPantalla;
    Pic_Todos.Move((anchoPantalla - ANCHO_TODOS) / 2, (altoPantalla - ALTO_TODOS) / 2);
    FinCareta = FALSO;
    for (CuadroImagen *s : {&Pic_Icono, &Pic_Bmp, &Pic_Logo}) {
        s->Move(anchoPantalla + 10, s->Top);
        s->Visible = false;
    }
}

// The five copies of one frame, in their order, with the block's top at y.
void FormCareta::DibujaFotograma(int32_t y) {
    BitBlt(Pic_Careta, 27, y, 97, 44, Pic_Logo, 0, 0, SRCCOPY);
    BitBlt(Pic_Careta, 214, y + 5, 34, 34, Pic_Icono, 0, 0, SRCCOPY);
    BitBlt(Pic_Careta, 27, y + 80, 236, 49, Pic_Bmp, 0, 0, SRCCOPY);
    BitBlt(Pic_Careta, 26, y + 145, 238, 23, Pic_Bmp, 0, 49, SRCCOPY);
    BitBlt(Pic_Careta, 25, y + 186, 240, 15, Pic_Bmp, 0, 72, SRCCOPY);
}

void FormCareta::Form_Activate() {
    Pasadas = 1;
    RectArriba = Y_ENTRADA;
    while (FinCareta == FALSO) {
        DibujaFotograma(RectArriba);
        // Refresh: the whole viewport on the screen at once.
        Pic_Careta.Cambiado(Pic_Careta.Limites());
        EsperaTiempo(PAUSA_FOTOGRAMA);
        // A key reaches the form here.
        PermiteEventos();
        RectArriba = RectArriba - 1;
        if (RectArriba < Y_SALIDA) {
            RectArriba = Y_ENTRADA;
            Pasadas = static_cast<int16_t>(Pasadas + 1);
            if (Pasadas > PASADAS) {
                FinCareta = VERDADERO;
            }
        }
    }
    cerrada_ = true;
}

void FormCareta::Pic_Careta_KeyDown(int16_t, int16_t) {
    FinCareta = VERDADERO;
}
