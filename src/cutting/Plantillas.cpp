// The two shapes of an irregular puzzle, drawn once as filled templates.
//
// Template A has knobs out at the top and the bottom and sockets in at the
// left and the right; template B the other way round, and it stands right of
// A on Pic_Temporal. Each side is a round knob between two shallow
// shoulders: the shoulders are flat ellipses (aspect 0.35 on a horizontal
// side, 2.85 on a vertical one), the knob a circle whose centre stands 0.09
// of the side from the edge.
#include "cutting/Plantillas.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Angulos.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

void DibujaArco(Superficie &s, const ArcoPlantilla &a) {
    double aspecto = a.aspecto == 0.0 ? 1.0 : static_cast<double>(static_cast<float>(a.aspecto));
    s.CircleArco(a.x, a.y, a.radio, Radianes(a.inicio), Radianes(a.fin), aspecto);
}

// The centres of the sockets: the middle arc of a side that is no knob.
void AnadeHuecos(const ArcosPlantilla &arcos, std::vector<std::pair<int32_t, int32_t>> &huecos) {
    for (size_t i = 1; i < arcos.size(); i += 3) {
        if (!arcos[i].perilla) {
            huecos.emplace_back(Redondea(arcos[i].x), Redondea(arcos[i].y));
        }
    }
}

// Corners, twelve arcs, and the fill from the centre of the cell.
void DibujaPlantilla(Superficie &s, double x0, double y0, const ArcosPlantilla &arcos) {
    const double w = AnchoPieza, h = AltoPieza;
    const double x1 = x0 + w, y1 = y0 + h;
    s.PSet(x0, y0);
    s.PSet(x1, y0);
    s.PSet(x0, y1);
    s.PSet(x1, y1);
    for (const ArcoPlantilla &a : arcos) {
        DibujaArco(s, a);
    }
    FloodFill(s, Redondea(w / 2 + x0), Redondea(h / 2 + y0), COLOR_NEGRO);
    // On a small side the neck of a knob is narrower than its two outline
    // pixels, and the fill from the centre cannot enter it. A fill from the
    // knob's own centre makes it solid; on a knob already filled it paints
    // nothing.
    for (const ArcoPlantilla &a : arcos) {
        if (a.perilla) {
            FloodFill(s, Redondea(a.x), Redondea(a.y), COLOR_NEGRO);
        }
    }
}

// A knob may come out one pixel longer than the rounded margin. Then one row
// (or one column per template) through the middle is taken out, and the cut
// lines' last arcs move by the same pixel.
void CorrigeUnPixel(Superficie &s) {
    const int32_t a = AnchoPiezaTotal, t = AltoPiezaTotal;
    AjusteX = 0;
    AjusteY = 0;
    if (s.Point(a / 2, t) == COLOR_NEGRO) {
        BitBlt(s, 0, t / 2, s.Ancho(), t / 2 + 2, s, 0, t / 2 + 1, SRCCOPY);
        AjusteY = 1;
    }
    if (s.Point(2 * a, t / 2) == COLOR_NEGRO) {
        BitBlt(s, Int(a * 1.5), 0, a / 2 + 2, s.Alto(), s, Int(a * 1.5) + 1, 0, SRCCOPY);
        BitBlt(s, Int(a * 0.5), 0, a / 2 - 1, s.Alto(), s, Int(a * 0.5) + 1, 0, SRCCOPY);
        AjusteX = 1;
    }
}

} // namespace

ArcosPlantilla ArcosPlantillaA(double x0, double y0, double w, double h) {
    const double x1 = x0 + w, y1 = y0 + h;
    return {{
        {x0 + 0.22 * w, y0, 0.22 * w, 180, 15, 0.35},
        {x0 + 0.5 * w, y0 - 0.09 * w, 0.115 * w, 290, 250, 0, true},
        {x0 + 0.78 * w, y0, 0.22 * w, 165, 0, 0.35},
        {x0, y0 + 0.22 * h, 0.22 * h, 90, 350, 2.85},
        {x0 + 0.09 * h, y0 + 0.5 * h, 0.115 * h, 230, 130, 0},
        {x0, y0 + 0.78 * h, 0.22 * h, 10, 270, 2.85},
        {x1, y0 + 0.22 * h, 0.22 * h, 190, 90, 2.85},
        {x1 - 0.09 * h, y0 + 0.5 * h, 0.115 * h, 50, 310, 0},
        {x1, y0 + 0.78 * h, 0.22 * h, 270, 170, 2.85},
        {x0 + 0.22 * w, y1, 0.22 * w, 345, 180, 0.35},
        {x0 + 0.5 * w, y1 + 0.09 * w, 0.115 * w, 110, 70, 0, true},
        {x0 + 0.78 * w, y1, 0.22 * w, 0, 195, 0.35},
    }};
}

// The sockets of B are a little wider than the knobs that enter them, and
// their opening narrows as the grid grows.
ArcosPlantilla ArcosPlantillaB(double x0, double y0, double w, double h, double n) {
    const double x1 = x0 + w, y1 = y0 + h;
    return {{
        {x0 + 0.22 * w, y0, 0.22 * w, 0, 180, 0.35},
        {x0 + 0.5 * w, y0 + 0.09 * w, 0.12 * w, 120 - n, 65 + n, 0},
        {x0 + 0.78 * w, y0, 0.22 * w, 0, 180, 0.35},
        {x0, y0 + 0.22 * h, 0.22 * h, 250, 90, 2.85},
        {x0 - 0.09 * h, y0 + 0.5 * h, 0.115 * h, 10, 350, 0, true},
        {x0, y0 + 0.78 * h, 0.22 * h, 270, 110, 2.85},
        {x1, y0 + 0.22 * h, 0.22 * h, 90, 290, 2.85},
        {x1 + 0.09 * h, y0 + 0.5 * h, 0.115 * h, 190, 170, 0, true},
        {x1, y0 + 0.78 * h, 0.22 * h, 70, 270, 2.85},
        {x0 + 0.22 * w, y1, 0.22 * w, 180, 0, 0.35},
        {x0 + 0.5 * w, y1 - 0.09 * w, 0.12 * w, 300 - n, 245 + n, 0},
        {x0 + 0.78 * w, y1, 0.22 * w, 180, 0, 0.35},
    }};
}

void ConstruyePlantillas() {
    CuadroImagen &s = teselari.Pic_Temporal;
    // The spare space beyond the two templates takes what the arcs overshoot.
    s.Move(0, 0, AnchoPiezaTotal * 2.1, AltoPiezaTotal * 1.1);
    s.Cls();
    const double w = AnchoPieza, h = AltoPieza;
    const ArcosPlantilla a = ArcosPlantillaA(MargenX, MargenY, w, h);
    DibujaPlantilla(s, MargenX, MargenY, a);
    const double xb = MargenX + AnchoPiezaTotal;
    const ArcosPlantilla b = ArcosPlantillaB(xb, MargenY, w, h, PiezasPorLado);
    DibujaPlantilla(s, xb, MargenY, b);
    // Where a shoulder crosses the arc of a knob or a socket, the two
    // outlines enclose a pixel or two that no fill reaches: they belong to
    // the piece, and the templates come out solid. A socket whose mouth the
    // shoulders close on a fine grid stays open: the neighbour's knob lies
    // there.
    std::vector<std::pair<int32_t, int32_t>> huecos;
    AnadeHuecos(a, huecos);
    AnadeHuecos(b, huecos);
    s.FillColor = COLOR_NEGRO;
    RellenaEncerrados(s, COLOR_BLANCO, huecos);
    CorrigeUnPixel(s);
}
