#include "Cursores.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QPainterPath Dedo(int x, int arriba, int abajo, int ancho = 5) {
    QPainterPath c;
    c.addRoundedRect(QRectF(x, arriba, ancho - 1, abajo - arriba), 2, 2);
    return c;
}

QImage LienzoCursor() {
    QImage c(LadoCursor, LadoCursor, QImage::Format_ARGB32);
    c.fill(Qt::transparent);
    return c;
}

// The silhouette filled and outlined in black, then the blue cuff.
void PintaMano(QImage &c, const QPainterPath &mano, const QColor &piel) {
    QPainter p(&c);
    p.setPen(QPen(Qt::black, 1));
    p.setBrush(piel);
    p.drawPath(mano.simplified());
    p.fillRect(QRect(10, 26, 18, 6), Qt::black);
    p.fillRect(QRect(11, 27, 16, 4), QColor(0, 0, 200));
    p.fillRect(QRect(11, 27, 16, 1), QColor(90, 110, 255));
}

// A shade along the right side of each finger, one colour darker.
void SombreaDedo(QPainter &p, int x, int arriba, int abajo, const QColor &piel) {
    p.fillRect(QRect(x + 3, arriba + 2, 1, abajo - arriba - 2), piel.darker(125));
}

} // namespace

QImage GeneraManoAbierta(const QColor &piel) {
    QImage c = LienzoCursor();
    QPainterPath mano;
    mano.addRoundedRect(QRectF(9, 12, 19, 15), 4, 4);
    mano |= Dedo(10, 1, 16);
    mano |= Dedo(15, 2, 16);
    mano |= Dedo(20, 4, 16);
    mano |= Dedo(25, 8, 17, 4);
    QPainterPath pulgar;
    pulgar.moveTo(10, 24);
    pulgar.lineTo(2, 15);
    pulgar.quadTo(1, 11, 5, 12);
    pulgar.lineTo(11, 17);
    pulgar.closeSubpath();
    mano |= pulgar;
    PintaMano(c, mano, piel);
    QPainter p(&c);
    SombreaDedo(p, 10, 1, 14, piel);
    SombreaDedo(p, 15, 2, 14, piel);
    SombreaDedo(p, 20, 4, 14, piel);
    p.setPen(Qt::black);
    p.drawLine(15, 4, 15, 13);
    p.drawLine(20, 6, 20, 13);
    p.drawLine(25, 10, 25, 13);
    p.drawLine(9, 20, 11, 22);
    return c;
}

QImage GeneraManoIndice() {
    const QColor piel = Qt::white;
    QImage c = LienzoCursor();
    QPainterPath mano;
    mano.addRoundedRect(QRectF(9, 13, 19, 14), 4, 4);
    mano |= Dedo(10, 1, 18);
    QPainterPath nudillos;
    nudillos.addRoundedRect(QRectF(14, 10, 5, 7), 2, 2);
    nudillos.addRoundedRect(QRectF(18, 11, 5, 7), 2, 2);
    nudillos.addRoundedRect(QRectF(22, 12, 5, 7), 2, 2);
    mano |= nudillos;
    QPainterPath pulgar;
    pulgar.moveTo(10, 23);
    pulgar.lineTo(4, 18);
    pulgar.quadTo(3, 14, 7, 15);
    pulgar.lineTo(11, 18);
    pulgar.closeSubpath();
    mano |= pulgar;
    PintaMano(c, mano, piel);
    QPainter p(&c);
    SombreaDedo(p, 10, 1, 16, piel);
    p.setPen(Qt::black);
    p.drawLine(15, 14, 15, 17);
    p.drawLine(18, 14, 18, 18);
    p.drawLine(22, 15, 22, 18);
    p.drawLine(10, 20, 12, 22);
    return c;
}
