#include "core/Rejilla.h"

#include "core/PuzzGbl.h"
#include "core/Redondeo.h"

using namespace PuzzGbl;

void CalculaPiezas() {
    NroPiezas = static_cast<int16_t>(PiezasPorLado * PiezasPorLado);
    if (PiezasDobles != 0) {
        NroPiezas = static_cast<int16_t>(NroPiezas * 2);
    }
    if (PiezasPorLado > 0) {
        AnchoPieza = static_cast<int16_t>(teselari.Pic_Origin.Ancho() / PiezasPorLado);
        AltoPieza = static_cast<int16_t>(teselari.Pic_Origin.Alto() / PiezasPorLado);
    } else {
        AnchoPieza = AltoPieza = 0;
    }
    AnchoPuzzle = static_cast<int16_t>(AnchoPieza * PiezasPorLado);
    AltoPuzzle = static_cast<int16_t>(AltoPieza * PiezasPorLado);
    CalculaDificultad();
}

void CalculaDificultad() {
    // The smaller the piece, the harder: an area of 288 gives 100, one of
    // 140 x 140 gives 0. Each step is kept in single precision.
    int32_t s = static_cast<int32_t>(AltoPieza) * AnchoPieza;
    if (PiezasDobles != 0) {
        s /= 2;
    }
    float a = static_cast<float>(100.0 - (s - 288) / 193.12);
    float b = static_cast<float>((NroPiezas - 9) / 7.91);
    float c = static_cast<float>(100 - FactorPegado);
    float d = static_cast<float>((static_cast<double>(b) + a + c) / 3.0);
    switch (TipoPieza) {
    case 0:
        d -= 1.0f;
        break;
    case 1:
        d -= 2.0f;
        break;
    case 3:
        d += 1.0f;
        break;
    case 5:
        d += 2.0f;
        break;
    default:
        break;
    }
    if (d < 0.0f) {
        Dificultad = 0.1f;
    } else if (d > 100.0f) {
        Dificultad = 99.9f;
    } else {
        Dificultad = d;
    }
}

void CalculaMargenes() {
    MargenX = 0;
    MargenY = 0;
    if (TipoPieza == 1) {
        // A knob reaches 0.205 of its side beyond the edge; a knob on a
        // vertical side grows with the height, one on a horizontal side with
        // the width.
        MargenX = Redondea(AltoPieza * 0.205);
        MargenY = Redondea(AnchoPieza * 0.205);
    }
    AnchoPiezaTotal = 2 * MargenX + AnchoPieza;
    AltoPiezaTotal = 2 * MargenY + AltoPieza;
}
