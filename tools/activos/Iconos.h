// The button strip: thirteen 48 x 48 images with a hard drop shadow in one
// exact colour, and the seed points from which a pressed button's fill
// removes that shadow.
#pragma once

#include <QImage>
#include <QPoint>
#include <QRgb>
#include <vector>

constexpr int LadoIcono = 48;
constexpr int NumeroIconos = 13;
constexpr int AnchoTira = 638;
constexpr int AltoTira = 50;
constexpr QRgb ColorSombra = 0xFF000080; // red 0, green 0, blue 0x80
constexpr QRgb ColorPanel = 0xFFC0C0C0;
constexpr int DesplazaSombra = 3;

// The left edge of image i (1..13) in the strip; its top is 1.
inline int XIcono(int i) {
    return (i - 1) * 49 + 1;
}

// The seed points of button i, in the coordinates of a pressed 56 x 56
// button (the image stands at (5, 5)). Images 12 and 13 have none.
std::vector<QPoint> SemillasBoton(int i);

// Builds one image from its layers, bottom first (ARGB 48 x 48 each): each
// layer casts a hard shadow on what lies under it; shadow parts that no seed
// reaches are left out, so that a pressed button loses all of its shadow.
QImage ComponeIcono(const std::vector<QImage> &capas, const std::vector<QPoint> &semillas);

// The layers of image i, drawn with antialiasing.
std::vector<QImage> CapasIcono(int i);

// The whole strip, 638 x 50, on the panel grey.
QImage GeneraTiraBotones();
