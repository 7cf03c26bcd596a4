// CAMPANA.JPG: a bronze bell hanging in the arch of a stone bell tower,
// over the roofs of a town.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

QPainterPath Arco(const QRectF &r) {
    QPainterPath a;
    a.moveTo(r.left(), r.bottom());
    a.lineTo(r.left(), r.top() + r.width() / 2);
    a.arcTo(QRectF(r.left(), r.top(), r.width(), r.width()), 180, -180);
    a.lineTo(r.right(), r.bottom());
    a.closeSubpath();
    return a;
}

// A row of town houses: coloured walls, windows, tiled roofs.
void PintaTejados(QPainter &p, double y, uint32_t semilla) {
    Azar azar(semilla);
    for (double x = -20; x < 820; x += azar.Entre(70, 110)) {
        const double ancho = azar.Entre(80, 120), alto = azar.Entre(60, 110);
        const QRectF muro(x, y - alto, ancho, alto + 200);
        const QColor color =
            QColor::fromHsv(azar.Entero(10, 50), azar.Entero(40, 120), azar.Entero(190, 245));
        p.setPen(Qt::NoPen);
        p.setBrush(BrochaRuido(color, 25, 3, semilla + static_cast<int>(x)));
        p.drawRect(muro);
        for (double vy = muro.top() + 15; vy < 600; vy += 38) {
            for (double vx = muro.left() + 12; vx < muro.right() - 18; vx += 30) {
                PintaVentana(p, QRectF(vx, vy, 14, 20), QColor(250, 250, 245), QColor(0, 0, 0, 0),
                             semilla + static_cast<int>(vx + vy));
            }
        }
        QPainterPath tejado;
        tejado.moveTo(muro.left() - 6, muro.top());
        tejado.lineTo(muro.center().x(), muro.top() - azar.Entre(25, 45));
        tejado.lineTo(muro.right() + 6, muro.top());
        tejado.closeSubpath();
        p.save();
        p.setClipPath(tejado);
        PintaTejas(p, tejado.boundingRect(), QColor(190, 80, 50), 12, semilla + 1);
        p.restore();
    }
}

} // namespace

QImage GeneraMuestraCampana() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, h), QColor(30, 90, 200), QColor(150, 200, 245), 0.85, 61);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    Azar azar(62);
    // Mountains far away and the town below.
    QPainterPath montes;
    montes.moveTo(0, 420);
    for (int x = 0; x <= w; x += 40) {
        montes.lineTo(x, 380 - 50 * std::sin(x / 130.0) - 25 * std::sin(x / 47.0));
    }
    montes.lineTo(w, h);
    montes.lineTo(0, h);
    montes.closeSubpath();
    RellenaRuido(p, montes, QColor(110, 140, 170), 30, 12, 63);
    PintaTejados(p, 500, 64);
    // The tower: stone blocks, a cornice, the belfry arch.
    const QRectF torre(250, 40, 300, 600);
    PintaLadrillos(p, torre, QColor(200, 180, 145), 38, 19, 65, QColor(150, 140, 120));
    p.fillRect(QRectF(250, 40, 300, 600), QColor(0, 0, 0, 0));
    QLinearGradient luz(250, 0, 550, 0);
    luz.setColorAt(0, QColor(255, 255, 255, 40));
    luz.setColorAt(1, QColor(0, 0, 0, 70));
    p.fillRect(torre, luz);
    for (const double y : {95.0, 420.0}) {
        p.fillRect(QRectF(238, y, 324, 14), BrochaRuido(QColor(215, 200, 170), 25, 3, 66));
        p.fillRect(QRectF(238, y + 14, 324, 4), QColor(90, 80, 60));
    }
    // The pyramid roof and its cross, and a weather vane.
    QPainterPath tejado;
    tejado.moveTo(230, 96);
    tejado.lineTo(400, -40);
    tejado.lineTo(570, 96);
    tejado.closeSubpath();
    p.save();
    p.setClipPath(tejado);
    PintaTejas(p, QRectF(230, -40, 340, 136), QColor(170, 70, 45), 16, 67);
    p.restore();
    // The belfry: a dark arch, columns on both sides.
    const QRectF hueco(305, 140, 190, 270);
    QLinearGradient oscuro(0, 140, 0, 410);
    oscuro.setColorAt(0, QColor(40, 35, 45));
    oscuro.setColorAt(1, QColor(80, 70, 70));
    p.setPen(Qt::NoPen);
    p.setBrush(oscuro);
    p.drawPath(Arco(hueco));
    // Inside: the far arch open to the sky, the stone of the back wall and
    // the wooden braces of the bell frame.
    p.save();
    p.setClipPath(Arco(hueco));
    PintaLadrillos(p, hueco, QColor(95, 80, 70), 30, 15, 71, QColor(60, 50, 45));
    QLinearGradient lejos(0, 170, 0, 400);
    lejos.setColorAt(0, QColor(90, 150, 220));
    lejos.setColorAt(1, QColor(190, 220, 240));
    p.setBrush(lejos);
    p.drawPath(Arco(QRectF(345, 190, 110, 215)));
    PintaFollaje(p, {400, 400}, 60, 25, QColor(60, 120, 60), 300, 72);
    p.setBrush(QColor(0, 0, 0, 90));
    p.drawRect(hueco);
    p.restore();
    p.setPen(QPen(QColor(90, 55, 25), 9));
    p.drawLine(QPointF(312, 410), QPointF(380, 200));
    p.drawLine(QPointF(488, 410), QPointF(420, 200));
    p.setPen(Qt::NoPen);
    // Arch stones around the opening.
    for (int k = 0; k <= 12; ++k) {
        const double a = M_PI - k * M_PI / 12;
        const QPointF c(400, 235);
        const QPointF q = c + QPointF(std::cos(a), -std::sin(a)) * 107;
        p.save();
        p.translate(q);
        p.rotate(-a * 180 / M_PI + 90);
        p.setBrush(BrochaRuido(QColor(225, 205, 170), 30, 3, 68 + k));
        p.setPen(QPen(QColor(120, 105, 85), 1));
        p.drawRect(QRectF(-12, -8, 24, 16));
        p.restore();
    }
    for (const double x : {292.0, 495.0}) {
        QLinearGradient col(x, 0, x + 14, 0);
        col.setColorAt(0, QColor(240, 225, 195));
        col.setColorAt(1, QColor(160, 140, 110));
        p.setBrush(col);
        p.drawRect(QRectF(x, 235, 14, 180));
    }
    // The beam, the yoke and the bell.
    p.setBrush(BrochaRuido(QColor(110, 70, 35), 35, 3, 69));
    p.drawRect(QRectF(305, 185, 190, 18));
    p.setBrush(QColor(60, 45, 30));
    p.drawRect(QRectF(385, 200, 30, 22));
    QPainterPath campana;
    campana.moveTo(372, 228);
    campana.cubicTo(372, 215, 428, 215, 428, 228);
    campana.cubicTo(432, 280, 440, 320, 478, 352);
    campana.quadTo(400, 372, 322, 352);
    campana.cubicTo(360, 320, 368, 280, 372, 228);
    campana.closeSubpath();
    QLinearGradient bronce(322, 0, 478, 0);
    bronce.setColorAt(0, QColor(110, 70, 20));
    bronce.setColorAt(0.28, QColor(250, 215, 120));
    bronce.setColorAt(0.45, QColor(210, 150, 50));
    bronce.setColorAt(0.8, QColor(140, 90, 25));
    bronce.setColorAt(1, QColor(80, 50, 15));
    p.setPen(QPen(QColor(70, 40, 10), 2));
    p.setBrush(bronce);
    p.drawPath(campana);
    // Bands and an inscription of small marks on the bell.
    p.setPen(QPen(QColor(110, 70, 20), 2));
    p.drawLine(QPointF(368, 262), QPointF(432, 262));
    p.drawLine(QPointF(350, 330), QPointF(450, 330));
    p.drawLine(QPointF(340, 340), QPointF(460, 340));
    for (int k = 0; k < 9; ++k) {
        p.drawEllipse(QPointF(372 + k * 7, 270), 2, 2.5);
    }
    p.setBrush(QColor(140, 100, 40));
    p.drawEllipse(QPointF(400, 298), 12, 12);
    p.setBrush(QColor(60, 40, 20));
    p.drawEllipse(QPointF(405, 364), 9, 9);
    // The rope falling from the wheel.
    p.setPen(QPen(QColor(200, 170, 110), 3));
    p.drawLine(QPointF(470, 200), QPointF(482, 410));
    // A clock under the belfry.
    const QPointF reloj(400, 500);
    p.setPen(QPen(QColor(60, 50, 40), 4));
    p.setBrush(QColor(245, 240, 225));
    p.drawEllipse(reloj, 55, 55);
    for (int k = 0; k < 12; ++k) {
        const double a = k * M_PI / 6;
        p.setPen(QPen(QColor(40, 40, 40), k % 3 == 0 ? 4 : 2));
        p.drawLine(reloj + QPointF(std::cos(a), std::sin(a)) * 42,
                   reloj + QPointF(std::cos(a), std::sin(a)) * 50);
    }
    p.setPen(QPen(QColor(20, 20, 20), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(reloj, reloj + QPointF(22, -18));
    p.setPen(QPen(QColor(20, 20, 20), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(reloj, reloj + QPointF(-10, -40));
    // Swallows and a flag.
    p.setPen(QPen(QColor(30, 30, 40), 2));
    for (int k = 0; k < 12; ++k) {
        const QPointF c(azar.Entre(20, 780), azar.Entre(30, 330));
        if (c.x() > 230 && c.x() < 570) {
            continue;
        }
        const double s = azar.Entre(6, 12);
        p.drawLine(c, c + QPointF(-s, -s * 0.5));
        p.drawLine(c, c + QPointF(s, -s * 0.4));
    }
    p.setPen(QPen(QColor(50, 50, 50), 3));
    p.drawLine(QPointF(400, -40), QPointF(400, 10));
    p.drawLine(QPointF(385, 0), QPointF(415, 0));
    // Trees in front of the houses.
    for (int k = 0; k < 5; ++k) {
        const double x = k < 2 ? 40 + k * 120 : 600 + (k - 2) * 90;
        PintaFollaje(p, {x, 560}, 50, 60, QColor(50, 120, 45), 900, 70 + k);
    }
    p.end();
    AplicaGrano(img, 4, 60);
    return img;
}
