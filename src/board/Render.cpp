#include "board/Render.h"

#include <string>

#include "core/Controles.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

void MuestraPieza(Superficie &destino, int16_t posicion) {
    FormTeselari &f = teselari;
    const Pieza &q = Piezas[OrdenPiezas[posicion]];
    const int32_t bx = q.X - MargenX, by = q.Y - MargenY;
    if (TipoPieza == 0) {
        const Superficie &fuente = ModoColocadas != 0 ? f.Pic_PiezaColor : f.Pic_Bitmap;
        BitBlt(destino, bx, by, AnchoPieza, AltoPieza, fuente, q.XCorrecta, q.YCorrecta, SRCCOPY);
        return;
    }
    // The backdrop is always the composite, whichever the target, and the
    // target takes the whole box in one copy: the box is never seen empty.
    const int32_t w = AnchoPiezaTotal, h = AltoPiezaTotal;
    BitBlt(f.Pic_PiezaFinal, 0, 0, w, h, f.Pic_Imagen, bx, by, SRCCOPY);
    BitBlt(f.Pic_PiezaFinal, 0, 0, w, h, f.Pic_PiezaMascara, 0, 0, SRCAND);
    BitBlt(f.Pic_PiezaFinal, 0, 0, w, h, f.Pic_PiezaImagen, 0, 0, SRCINVERT);
    BitBlt(destino, bx, by, w, h, f.Pic_PiezaFinal, 0, 0, SRCCOPY);
}

void EstampaPiezaEnImagen(int32_t x, int32_t y) {
    FormTeselari &f = teselari;
    BitBlt(f.Pic_Imagen, x, y, AnchoPiezaTotal, AltoPiezaTotal, f.Pic_PiezaMascara, 0, 0, SRCAND);
    BitBlt(f.Pic_Imagen, x, y, AnchoPiezaTotal, AltoPiezaTotal, f.Pic_PiezaImagen, 0, 0, SRCINVERT);
}

void Pic_Trabajo_Paint() {
    FormTeselari &f = teselari;
    BitBlt(f.Pic_Trabajo, 0, 0, f.Pic_Trabajo.Ancho(), f.Pic_Trabajo.Alto(), f.Pic_Imagen, 0, 0,
           SRCCOPY);
}

void RestauraBitmap() {
    FormTeselari &f = teselari;
    PuzzleCompleto = VERDADERO;
    BitBlt(f.Pic_Imagen, 0, 0, AnchoPuzzle, AltoPuzzle, f.Pic_Origin, 0, 0, SRCCOPY);
    Pic_Trabajo_Paint();
    // A finished puzzle can't be solved: the solver's button says so.
    f.Pic_BotonDerecho[9].MousePointer = PUNTERO_PROHIBIDO;
}

void RecuperaContornos() {
    FormTeselari &f = teselari;
    BitBlt(f.Pic_Imagen, 0, 0, AnchoPuzzle, AltoPuzzle, f.Pic_Bitmap, 0, 0, SRCCOPY);
    Pic_Trabajo_Paint();
}

void PiezaPrioritaria(int16_t posicion) {
    if (posicion < 1 || posicion >= static_cast<int32_t>(OrdenPiezas.size())) {
        return;
    }
    const int16_t e = OrdenPiezas[posicion];
    for (int32_t j = posicion; j >= 2; --j) {
        OrdenPiezas[j] = OrdenPiezas[j - 1];
    }
    OrdenPiezas[1] = e;
}

bool PiezaEnSuSitio(int16_t k) {
    const Pieza &p = Piezas[k];
    return p.X == p.XCorrecta && p.Y == p.YCorrecta;
}

void ActualizaBSInfo() {
    PiezasColocadas = 0;
    for (int32_t i = 1; i <= NroPiezas && i < static_cast<int32_t>(Piezas.size()); ++i) {
        if (PiezaEnSuSitio(static_cast<int16_t>(i))) {
            ++PiezasColocadas;
        }
    }
    Superficie &s = teselari.Pic_BSInfo;
    s.Cls();
    const std::string texto = std::to_string(PiezasColocadas) + " / " + std::to_string(NroPiezas);
    s.CurrentX = DivEntera(Redondea(s.Ancho() - 4 - s.TextWidth(texto)), 2);
    s.CurrentY = 3;
    s.Print(texto);
}
