// The arcs of the two piece templates of an irregular puzzle.
#pragma once

#include <array>

// One arc: centre, radius, start and end in degrees, aspect (0: circular);
// `perilla` marks the round knob that stands out of the cell.
struct ArcoPlantilla {
    double x, y, radio, inicio, fin, aspecto;
    bool perilla = false;
};

using ArcosPlantilla = std::array<ArcoPlantilla, 12>;

// Template A, cell at (x0, y0), w x h: knobs out at the top and the bottom,
// sockets in at the left and the right. In the order top, left, right,
// bottom, three arcs each.
ArcosPlantilla ArcosPlantillaA(double x0, double y0, double w, double h);

// Template B: knobs out at the left and the right, sockets at the top and
// the bottom, whose opening depends on the grid's side n.
ArcosPlantilla ArcosPlantillaB(double x0, double y0, double w, double h, double n);
