// Between Qt's images and colours and the raster layer's surfaces.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include "raster/Superficie.h"

// A colour of the game (0x00BBGGRR) as Qt's.
QColor ColorQt(Color c);

// The image, in any format, as the whole surface: the surface takes its
// size and its pixels.
void CopiaEnSuperficie(const QImage &imagen, Superficie &destino);

// A picture of the program's resources laid on the surface from its top
// left corner and within the surface's size: the strip of button images
// into Pic_BmpBoton, the face of the chronometer into Pic_Cronome. False
// when the resource is missing (the surface keeps what it had).
bool CargaRecurso(const QString &ruta, Superficie &s);
