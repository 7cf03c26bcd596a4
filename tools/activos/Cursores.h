// The four hand pointers, 32 x 32 with transparency; the tip of the index
// finger is the hot spot (12, 1).
#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>

constexpr int LadoCursor = 32;
inline const QPoint PuntoActivoCursor(12, 1);

// An open hand of the given colour with a blue cuff.
QImage GeneraManoAbierta(const QColor &piel);

// A white hand with the index finger stretched and the others folded.
QImage GeneraManoIndice();
