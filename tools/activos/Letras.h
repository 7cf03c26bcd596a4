// Text as outlines, from the DejaVu font files themselves: the same shapes
// on every run, whatever the font database would pick.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QString>

enum class Letra { Sans, SansNegrita, SerifNegrita };

// The outline of `texto` with its baseline starting at `base`.
QPainterPath TextoEnCamino(const QString &texto, QPointF base, double pixeles, Letra letra);

// Fills `texto` centred in `caja`, in `color`.
void PintaTextoCentrado(QPainter &p, const QRectF &caja, const QString &texto, double pixeles,
                        Letra letra, const QColor &color);
