// RotuladorQt: the game's text service, drawn with Qt in Liberation Sans.
//
// The forms name "MS Sans Serif" (and "Arial") in points. Liberation Sans
// (Debian's fonts-liberation, metric-compatible with Arial) stands in for
// both: it is narrower than DejaVu Sans, so every line of every message keeps
// to one line of the 365-pixel label, and reads as the original does. Sizes
// are the pixels of the points on a 96 dpi screen (8.25 pt -> 11 px, 12 pt ->
// 16 px), but for the message's 9.75 pt, whose face is set a pixel smaller,
// 12 px: at 13 px the longest lines ("Se ha modificado el Zoom para adaptar
// la imagen a dichos límites.") would pass the label's width. Lines stay
// within 16 pixels. The face is looked up once; when fontconfig does not
// know it, its files are loaded from Debian's folder. Text is drawn straight
// into the surface's rows; the logic never reads it back.
#pragma once

#include <QFont>

#include "raster/Superficie.h"

class RotuladorQt : public Rotulador {
  public:
    double Ancho(const Fuente &f, const std::string &texto) override;
    double Alto(const Fuente &f, const std::string &texto) override;
    void Dibuja(Superficie &s, const Fuente &f, double x, double y, Color c,
                const std::string &texto) override;
};

// The Qt font of a game font.
QFont FuenteQt(const Fuente &f);
// Pixels of a size in points on the game's 96 dpi screen, rounded; 9.75 pt,
// the messages' text, is 12 pixels.
int PixelesDePuntos(double puntos);

// The family standing for the forms' faces, "Liberation Sans"; loaded from
// its files on the first call when the system's font list lacks it.
const QString &FamiliaDelJuego();
