// A generated picture to cut when no picture file is given.
#pragma once

#include <QImage>

// A sunny landscape: sky, sun, clouds, mountains, hills, a house with a red
// roof, trees, flowers and a tram. Drawn for 640x480 and scaled to the size
// asked; the same size always gives the same pixels.
QImage DibujaMuestra(int ancho = 640, int alto = 480);
