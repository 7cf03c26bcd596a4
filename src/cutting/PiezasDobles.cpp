// Double puzzles: each cell holds a figure and the rectangle around it.
//
// The figures go filled in black into Pic_Mascara, from which every mask is
// cut, and as an outline two pixels thick into Pic_Bitmap, where they show
// as the cut line. Each cell also gets the box of its rectangle.
#include <algorithm>

#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Angulos.h"
#include "cutting/Corte.h"
#include "cutting/Figuras.h"

using namespace PuzzGbl;

Figura CalculaFigura(int16_t tipo, int32_t w, int32_t h) {
    Figura f;
    switch (tipo) {
    case 2:
        f.R = Int(0.35 * std::min(w, h));
        break;
    case 3:
        f.Dx = Redondea(0.2 * w);
        f.Dy = Redondea(0.2 * h);
        break;
    case 4:
        if (w < h) {
            f.R = Redondea(0.35 * h);
            f.E = static_cast<float>(f.R / (0.35 * w));
        } else {
            f.R = Redondea(0.35 * w);
            f.E = static_cast<float>(0.35 * h / f.R);
        }
        break;
    case 5:
        f.A = Redondea(0.35 * h);
        f.B = Redondea(0.35 * w);
        f.E1 = static_cast<float>(f.A / (0.5 * f.B));
        f.E2 = static_cast<float>(0.5 * f.A / f.B);
        break;
    default:
        break;
    }
    return f;
}

namespace {

// The figure of one cell, filled, into the mask.
void FiguraEnMascara(Superficie &m, const Figura &f, int32_t c, int32_t fi, double cx, double cy) {
    const int32_t w = AnchoPieza, h = AltoPieza;
    switch (TipoPieza) {
    case 2:
        m.Circle(cx, cy, f.R);
        break;
    case 3:
        m.Caja(w * c + f.Dx, h * fi + f.Dy, (c + 1) * w - f.Dx - 1, (fi + 1) * h - f.Dy - 1);
        break;
    case 4:
        m.Circle(cx, cy, f.R, f.E);
        break;
    case 5:
        m.Circle(cx, cy, f.A, f.E1);
        m.Circle(cx, cy, f.B, f.E2);
        break;
    default:
        break;
    }
}

// The tips of the star: top and bottom of the upright ellipse, left and
// right of the flat one; what runs inside the other ellipse stays out.
void EstrellaEnBitmap(Superficie &b, const Figura &f, double cx, double cy) {
    struct ArcoEstrella {
        int32_t extra;
        bool erguida;
        double inicio, fin;
    };
    static const ArcoEstrella arcos[8] = {
        {0, true, 30, 150}, {0, true, 210, 330}, {0, false, 120, 240}, {0, false, 300, 60},
        {1, true, 30, 150}, {1, true, 210, 330}, {1, false, 120, 240}, {1, false, 300, 60},
    };
    for (const ArcoEstrella &a : arcos) {
        double radio = (a.erguida ? f.A : f.B) + a.extra;
        double aspecto = a.erguida ? f.E1 : f.E2;
        b.CircleArco(cx, cy, radio, Radianes(a.inicio), Radianes(a.fin), aspecto);
    }
}

// The box of the cell and the outline of its figure, two pixels thick.
void FiguraEnBitmap(Superficie &b, const Figura &f, int32_t c, int32_t fi, double cx, double cy) {
    const int32_t w = AnchoPieza, h = AltoPieza;
    b.Caja(w * c, h * fi, w * c + w - 1, h * fi + h - 1);
    switch (TipoPieza) {
    case 2:
        b.Circle(cx, cy, f.R);
        b.Circle(cx, cy, f.R + 1);
        break;
    case 3:
        b.Caja(w * c + f.Dx, h * fi + f.Dy, (c + 1) * w - f.Dx - 1, (fi + 1) * h - f.Dy - 1);
        b.Caja(w * c + f.Dx - 1, h * fi + f.Dy - 1, (c + 1) * w - f.Dx, (fi + 1) * h - f.Dy);
        break;
    case 4:
        b.Circle(cx, cy, f.R, f.E);
        b.Circle(cx, cy, f.R + 1, f.E);
        break;
    case 5:
        EstrellaEnBitmap(b, f, cx, cy);
        break;
    default:
        break;
    }
}

} // namespace

void DibujaPiezasDobles() {
    const Figura f = CalculaFigura(TipoPieza, AnchoPieza, AltoPieza);
    const double w = AnchoPieza, h = AltoPieza;
    for (int16_t fila = 0; fila < PiezasPorLado; ++fila) {
        AuxFila = fila;
        for (int16_t col = 0; col < PiezasPorLado; ++col) {
            AuxColumna = col;
            const double cx = w * col + w / 2, cy = h * fila + h / 2;
            FiguraEnMascara(teselari.Pic_Mascara, f, col, fila, cx, cy);
            FiguraEnBitmap(teselari.Pic_Bitmap, f, col, fila, cx, cy);
        }
    }
}
