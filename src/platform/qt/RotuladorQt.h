// RotuladorQt: the game's text service, drawn with Qt in DejaVu Sans.
//
// The forms name "MS Sans Serif" in points; DejaVu Sans stands in for it at
// the pixel size of those points on a 96 dpi screen (8.25 pt -> 11 px,
// 9.75 pt -> 13 px, 12 pt -> 16 px), which keeps the line heights. Text is
// drawn straight into the surface's rows; the logic never reads it back.
#pragma once

#include <QFont>

#include "platform/raster/Superficie.h"

class RotuladorQt : public Rotulador {
  public:
    double Ancho(const Fuente &f, const std::string &texto) override;
    double Alto(const Fuente &f, const std::string &texto) override;
    void Dibuja(Superficie &s, const Fuente &f, double x, double y, Color c,
                const std::string &texto) override;
};

// The Qt font of a game font.
QFont FuenteQt(const Fuente &f);
// Pixels of a size in points on the game's 96 dpi screen, rounded.
int PixelesDePuntos(double puntos);
