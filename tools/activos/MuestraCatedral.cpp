// CATEDRAL.JPG: the front of a gothic cathedral with two towers, a rose
// window, pointed portals and statues, over a paved square with people.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

// A pointed arch standing on `r`'s bottom.
QPainterPath Ojiva(const QRectF &r) {
    QPainterPath a;
    const double arranque = r.top() + r.width() * 0.85;
    a.moveTo(r.left(), r.bottom());
    a.lineTo(r.left(), arranque);
    a.quadTo(r.left(), r.top() + r.width() * 0.2, r.center().x(), r.top());
    a.quadTo(r.right(), r.top() + r.width() * 0.2, r.right(), arranque);
    a.lineTo(r.right(), r.bottom());
    a.closeSubpath();
    return a;
}

// A lancet window of coloured glass.
void PintaVidriera(QPainter &p, const QRectF &r, uint32_t semilla) {
    Azar azar(semilla);
    const QPainterPath o = Ojiva(r);
    p.save();
    p.setClipPath(o);
    for (double y = r.top(); y < r.bottom(); y += 7) {
        for (double x = r.left(); x < r.right(); x += 7) {
            p.fillRect(QRectF(x, y, 7, 7), ColorVivo(semilla, azar.Entero(0, 9)).darker(130));
        }
    }
    p.restore();
    p.setPen(QPen(QColor(60, 50, 40), 2.5));
    p.setBrush(Qt::NoBrush);
    p.drawPath(o);
    p.drawLine(QPointF(r.center().x(), r.top() + 6), QPointF(r.center().x(), r.bottom()));
}

// A portal: receding pointed arches around a wooden door, statues beside.
void PintaPortada(QPainter &p, const QRectF &r, uint32_t semilla) {
    for (int k = 0; k < 5; ++k) {
        const QRectF a = r.adjusted(-k * 9, -k * 9, k * 9, 0);
        p.setPen(QPen(QColor(120, 105, 80), 2));
        p.setBrush(BrochaRuido(QColor(215 - k * 8, 195 - k * 8, 160 - k * 8), 30, 3, semilla + k));
        p.drawPath(Ojiva(a));
    }
    for (int k = 4; k >= 0; --k) {
        p.setPen(QPen(QColor(100, 85, 65), 1.5));
        p.setBrush(Qt::NoBrush);
        p.drawPath(Ojiva(r.adjusted(-k * 9, -k * 9, k * 9, 0)));
    }
    p.setPen(QPen(QColor(50, 30, 15), 2));
    p.setBrush(BrochaRuido(QColor(110, 60, 30), 30, 3, semilla + 9));
    p.drawPath(Ojiva(r));
    p.drawLine(QPointF(r.center().x(), r.top() + r.width() * 0.5),
               r.center() + QPointF(0, r.height() / 2));
    // The tympanum with a carved figure.
    p.setBrush(QColor(200, 180, 140));
    p.drawEllipse(QPointF(r.center().x(), r.top() + r.width() * 0.45), r.width() * 0.2,
                  r.width() * 0.2);
    // Statues on both sides.
    for (const int lado : {-1, 1}) {
        const double x = lado < 0 ? r.left() - 58 : r.right() + 58;
        const double y = r.bottom() - 30;
        p.setPen(QPen(QColor(110, 95, 75), 1));
        p.setBrush(QColor(190, 175, 145));
        p.drawRoundedRect(QRectF(x - 10, y - 70, 20, 70), 6, 6);
        p.drawEllipse(QPointF(x, y - 78), 7, 8);
        p.setBrush(QColor(170, 150, 120));
        p.drawRect(QRectF(x - 14, y, 28, 10));
    }
}

} // namespace

QImage GeneraMuestraCatedral() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, h), QColor(70, 120, 200), QColor(240, 200, 170), 0.9, 161);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    Azar azar(162);
    const QColor piedra(205, 185, 150);
    // The two towers, the nave's front and its gable.
    for (const double tx : {80.0, 560.0}) {
        PintaLadrillos(p, QRectF(tx, 110, 160, 420), piedra, 32, 16, 163 + static_cast<int>(tx),
                       QColor(160, 145, 115));
        // The spire with its pinnacles.
        QPainterPath aguja;
        aguja.moveTo(tx + 10, 112);
        aguja.lineTo(tx + 80, -30);
        aguja.lineTo(tx + 150, 112);
        aguja.closeSubpath();
        p.save();
        p.setClipPath(aguja);
        PintaLadrillos(p, QRectF(tx, -30, 160, 142), QColor(120, 130, 140), 18, 9, 170,
                       QColor(80, 90, 100));
        p.restore();
        for (const double px : {tx, tx + 140}) {
            QPainterPath pinaculo;
            pinaculo.moveTo(px, 112);
            pinaculo.lineTo(px + 10, 60);
            pinaculo.lineTo(px + 20, 112);
            pinaculo.closeSubpath();
            p.setPen(QPen(QColor(120, 105, 80), 1));
            p.setBrush(piedra.darker(110));
            p.drawPath(pinaculo);
        }
        p.fillRect(QRectF(tx - 6, 106, 172, 10), piedra.darker(120));
        PintaVidriera(p, QRectF(tx + 35, 150, 36, 110), 171 + static_cast<int>(tx));
        PintaVidriera(p, QRectF(tx + 89, 150, 36, 110), 172 + static_cast<int>(tx));
        PintaVidriera(p, QRectF(tx + 55, 290, 50, 60), 173 + static_cast<int>(tx));
        // A clock on the left tower, bells on the right.
        if (tx < 400) {
            p.setPen(QPen(QColor(60, 50, 30), 3));
            p.setBrush(QColor(20, 40, 90));
            p.drawEllipse(QPointF(tx + 80, 395), 28, 28);
            p.setPen(QPen(QColor(230, 200, 80), 3));
            p.drawLine(QPointF(tx + 80, 395), QPointF(tx + 80, 374));
            p.drawLine(QPointF(tx + 80, 395), QPointF(tx + 95, 402));
        } else {
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(40, 35, 40));
            p.drawPath(Ojiva(QRectF(tx + 55, 365, 50, 60)));
            p.setBrush(QColor(190, 140, 50));
            p.drawChord(QRectF(tx + 64, 385, 32, 40), 0, 180 * 16);
        }
    }
    PintaLadrillos(p, QRectF(240, 200, 320, 330), piedra.lighter(105), 32, 16, 180,
                   QColor(160, 145, 115));
    QPainterPath frontis;
    frontis.moveTo(240, 202);
    frontis.lineTo(400, 80);
    frontis.lineTo(560, 202);
    frontis.closeSubpath();
    p.save();
    p.setClipPath(frontis);
    PintaLadrillos(p, QRectF(240, 80, 320, 122), piedra, 32, 16, 181, QColor(160, 145, 115));
    p.restore();
    p.setPen(QPen(QColor(120, 100, 70), 3));
    p.setBrush(Qt::NoBrush);
    p.drawPath(frontis);
    p.setPen(QPen(QColor(90, 80, 60), 5));
    p.drawLine(QPointF(400, 80), QPointF(400, 40));
    p.drawLine(QPointF(386, 54), QPointF(414, 54));
    // The rose window: coloured sectors in rings, stone tracery.
    const QPointF rosa(400, 265);
    p.setPen(QPen(QColor(110, 95, 70), 3));
    p.setBrush(piedra.darker(115));
    p.drawEllipse(rosa, 78, 78);
    for (int anillo = 3; anillo >= 1; --anillo) {
        const double r = anillo * 22;
        const int sectores = 8 * anillo;
        for (int k = 0; k < sectores; ++k) {
            p.setPen(QPen(QColor(70, 60, 45), 2));
            p.setBrush(ColorVivo(182 + anillo, k % 6).darker(115));
            p.drawPie(QRectF(rosa.x() - r, rosa.y() - r, 2 * r, 2 * r), k * 5760 / sectores,
                      5760 / sectores);
        }
    }
    p.setBrush(QColor(230, 190, 60));
    p.drawEllipse(rosa, 9, 9);
    // A gallery of small arches under the rose.
    for (int k = 0; k < 9; ++k) {
        const QRectF a(252 + k * 33, 358, 24, 42);
        p.setPen(QPen(QColor(110, 95, 70), 1.5));
        p.setBrush(QColor(60, 50, 50));
        p.drawPath(Ojiva(a));
        p.setBrush(QColor(180, 165, 135));
        p.drawRoundedRect(QRectF(a.center().x() - 5, a.bottom() - 30, 10, 30), 4, 4);
        p.drawEllipse(QPointF(a.center().x(), a.bottom() - 34), 4, 5);
    }
    // The three portals.
    PintaPortada(p, QRectF(360, 425, 80, 105), 190);
    PintaPortada(p, QRectF(135, 445, 50, 85), 200);
    PintaPortada(p, QRectF(615, 445, 50, 85), 210);
    // The square: paving, people, pigeons, lamps.
    for (int fila = 0; fila < 10; ++fila) {
        const double y0 = 530 + fila * 7;
        PintaAdoquines(p, QRectF(0, y0, w, 8), 7 + fila * 1.2, 220 + fila);
    }
    for (int k = 0; k < 16; ++k) {
        const double y = azar.Entre(545, 598);
        PintaPersona(p, {azar.Entre(10, 790), y}, 30 + (y - 530) * 0.5, 230 + k);
    }
    for (const double lx : {30.0, 770.0}) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(30, 30, 35));
        p.drawRect(QRectF(lx - 3, 420, 6, 170));
        p.setBrush(QColor(255, 235, 160));
        p.drawRoundedRect(QRectF(lx - 11, 398, 22, 28), 5, 5);
    }
    // Birds over the towers.
    p.setPen(QPen(QColor(40, 40, 50), 2));
    for (int k = 0; k < 10; ++k) {
        const QPointF c(azar.Entre(20, 780), azar.Entre(20, 150));
        const double s = azar.Entre(5, 9);
        p.drawLine(c, c + QPointF(-s, -s * 0.5));
        p.drawLine(c, c + QPointF(s, -s * 0.5));
    }
    p.end();
    AplicaGrano(img, 4, 160);
    return img;
}
