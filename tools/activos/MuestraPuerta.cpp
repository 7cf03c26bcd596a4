// PUERTA.JPG: an old wooden door with iron studs and hinges, in a stone
// arch, with pots of flowers, a lantern and ivy on the wall.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Letras.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

// Wood: vertical planks with grain made of stretched noise.
QImage TexturaMadera(int ancho, int alto, uint32_t semilla) {
    QImage t(ancho, alto, QImage::Format_RGB32);
    for (int y = 0; y < alto; ++y) {
        for (int x = 0; x < ancho; ++x) {
            const double veta = RuidoFractal(x * 4.0, y * 0.25, 30, semilla);
            const double anillo = 0.5 + 0.5 * std::sin(veta * 40);
            const int tabla = x / 42;
            const double tono = ValorReticula(tabla, 0, semilla) * 30;
            const int r = static_cast<int>(120 + tono + anillo * 35 - (x % 42 == 0) * 60);
            const int g = static_cast<int>(70 + tono * 0.6 + anillo * 22 - (x % 42 == 0) * 40);
            const int b = static_cast<int>(35 + anillo * 12 - (x % 42 == 0) * 20);
            t.setPixel(x, y,
                       qRgb(std::clamp(r, 0, 255), std::clamp(g, 0, 255), std::clamp(b, 0, 255)));
        }
    }
    return t;
}

} // namespace

QImage GeneraMuestraPuerta() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    Azar azar(81);
    // A wall of irregular stones.
    p.fillRect(img.rect(), BrochaRuido(QColor(170, 160, 140), 25, 5, 82));
    for (double y = -10; y < h; y += 34) {
        for (double x = -20 + azar.Entre(0, 30); x < w; x += azar.Entre(45, 75)) {
            const double ancho = azar.Entre(40, 70);
            const QColor c =
                QColor::fromHsv(azar.Entero(20, 40), azar.Entero(20, 70), azar.Entero(150, 215));
            p.setPen(QPen(QColor(110, 100, 85), 2));
            p.setBrush(BrochaRuido(c, 30, 4, 83 + static_cast<int>(x + y)));
            p.drawRoundedRect(QRectF(x, y + azar.Entre(-3, 3), ancho, 32), 9, 9);
        }
    }
    // The arch of cut stones and the opening.
    const QPointF centro(400, 230);
    for (int k = 0; k <= 16; ++k) {
        const double a = M_PI - k * M_PI / 16;
        p.save();
        p.translate(centro + QPointF(std::cos(a), -std::sin(a)) * 168);
        p.rotate(-a * 180 / M_PI + 90);
        p.setPen(QPen(QColor(90, 80, 65), 2));
        p.setBrush(BrochaRuido(QColor(215, 195, 160), 30, 3, 90 + k));
        p.drawRect(QRectF(-18, -22, 36, 44));
        p.restore();
    }
    for (double y = 230; y < 540; y += 44) {
        for (const double x : {210.0, 568.0}) {
            p.setPen(QPen(QColor(90, 80, 65), 2));
            p.setBrush(BrochaRuido(QColor(210, 190, 155), 30, 3, 110 + static_cast<int>(y)));
            p.drawRect(QRectF(x, y, 22, 44));
        }
    }
    QPainterPath hueco;
    hueco.moveTo(232, 540);
    hueco.lineTo(232, 230);
    hueco.arcTo(QRectF(232, 62, 336, 336), 180, -180);
    hueco.lineTo(568, 540);
    hueco.closeSubpath();
    // The door itself: two leaves of planks.
    p.save();
    p.setClipPath(hueco);
    p.fillRect(QRectF(232, 62, 336, 480), QBrush(TexturaMadera(336, 480, 84)));
    p.fillRect(QRectF(398, 62, 4, 480), QColor(40, 25, 10));
    // Cross bars, studs and a small grille.
    for (const double y : {170.0, 330.0, 480.0}) {
        p.fillRect(QRectF(232, y, 336, 16), QColor(90, 55, 25));
        p.fillRect(QRectF(232, y + 13, 336, 3), QColor(50, 30, 10));
    }
    for (double y = 120; y < 540; y += 40) {
        for (double x = 260; x < 560; x += 40) {
            QRadialGradient clavo(x - 1.5, y - 1.5, 6);
            clavo.setColorAt(0, QColor(170, 170, 170));
            clavo.setColorAt(1, QColor(30, 30, 30));
            p.setPen(Qt::NoPen);
            p.setBrush(clavo);
            p.drawEllipse(QPointF(x, y), 5, 5);
        }
    }
    p.restore();
    p.setPen(QPen(QColor(50, 30, 15), 4));
    p.setBrush(Qt::NoBrush);
    p.drawPath(hueco);
    // Iron hinges on both leaves.
    for (const double y : {150.0, 300.0, 450.0}) {
        for (const int lado : {-1, 1}) {
            const double x0 = lado < 0 ? 236 : 564;
            QPainterPath bisagra;
            bisagra.moveTo(x0, y - 7);
            bisagra.lineTo(x0 - lado * 120, y - 4);
            bisagra.quadTo(x0 - lado * 140, y, x0 - lado * 120, y + 4);
            bisagra.lineTo(x0, y + 7);
            bisagra.closeSubpath();
            p.setPen(QPen(QColor(10, 10, 10), 1));
            p.setBrush(QColor(45, 45, 50));
            p.drawPath(bisagra);
        }
    }
    // A small barred window in the right leaf, and the knocker.
    p.setBrush(QColor(30, 30, 35));
    p.drawRoundedRect(QRectF(440, 205, 70, 80), 30, 30);
    p.setPen(QPen(QColor(120, 120, 125), 4));
    for (int k = 1; k < 4; ++k) {
        p.drawLine(QPointF(440 + k * 17.5, 208), QPointF(440 + k * 17.5, 282));
    }
    p.drawLine(QPointF(442, 245), QPointF(508, 245));
    QRadialGradient oro(372, 360, 30);
    oro.setColorAt(0, QColor(255, 230, 140));
    oro.setColorAt(1, QColor(150, 100, 20));
    p.setPen(QPen(oro, 7));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(372, 372), 20, 20);
    p.setPen(Qt::NoPen);
    p.setBrush(oro);
    p.drawEllipse(QPointF(372, 350), 10, 10);
    p.drawEllipse(QPointF(430, 390), 6, 9);
    p.setBrush(Qt::black);
    p.drawRect(QRectF(428, 395, 4, 10));
    // Stone steps.
    for (int k = 0; k < 3; ++k) {
        const QRectF escalon(190 - k * 40, 540 + k * 20, 420 + k * 80, 20);
        p.setPen(QPen(QColor(90, 85, 75), 1));
        p.setBrush(BrochaRuido(QColor(180 - k * 10, 175 - k * 10, 165 - k * 10), 30, 4, 120 + k));
        p.drawRect(escalon);
    }
    // Pots of flowers on both sides.
    for (const double x : {110.0, 690.0}) {
        QPainterPath maceta;
        maceta.moveTo(x - 55, 470);
        maceta.lineTo(x + 55, 470);
        maceta.lineTo(x + 40, 580);
        maceta.lineTo(x - 40, 580);
        maceta.closeSubpath();
        QLinearGradient barro(x - 55, 0, x + 55, 0);
        barro.setColorAt(0, QColor(150, 60, 30));
        barro.setColorAt(0.35, QColor(220, 110, 60));
        barro.setColorAt(1, QColor(120, 45, 20));
        p.setPen(QPen(QColor(90, 35, 15), 2));
        p.setBrush(barro);
        p.drawPath(maceta);
        p.fillRect(QRectF(x - 60, 462, 120, 14), QColor(190, 85, 45));
        PintaFollaje(p, {x, 420}, 75, 60, QColor(50, 130, 50), 1400, 130 + static_cast<int>(x));
        p.setPen(Qt::NoPen);
        for (int k = 0; k < 45; ++k) {
            const QPointF c(x + azar.Entre(-70, 70), 420 + azar.Entre(-55, 45));
            const QColor col = x < 400 ? QColor(230, 40, 60) : QColor(250, 200, 40);
            for (int petalo = 0; petalo < 5; ++petalo) {
                const double a = petalo * 2 * M_PI / 5;
                p.setBrush(col.lighter(100 + petalo * 8));
                p.drawEllipse(c + QPointF(std::cos(a), std::sin(a)) * 4, 3.5, 3.5);
            }
            p.setBrush(QColor(250, 240, 150));
            p.drawEllipse(c, 2, 2);
        }
    }
    // A lantern on the wall and a blue tile with the number.
    p.setPen(QPen(QColor(20, 20, 20), 3));
    p.drawLine(QPointF(640, 150), QPointF(680, 150));
    p.setBrush(QColor(255, 220, 120));
    p.drawRect(QRectF(662, 150, 30, 44));
    p.setBrush(QColor(30, 30, 30));
    p.drawPolygon(QPolygonF({QPointF(656, 150), QPointF(698, 150), QPointF(677, 130)}));
    p.setPen(QPen(QColor(20, 60, 150), 3));
    p.setBrush(QColor(245, 245, 250));
    p.drawRoundedRect(QRectF(620, 240, 70, 56), 6, 6);
    PintaTextoCentrado(p, QRectF(620, 240, 70, 56), "12", 36, Letra::SerifNegrita,
                       QColor(20, 60, 150));
    // Ivy over the upper left of the wall.
    for (int k = 0; k < 500; ++k) {
        const double t = azar.Real();
        const QPointF c(azar.Entre(0, 200) * (1 - t * 0.5), azar.Entre(0, 320) * t);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(azar.Entero(20, 70), azar.Entero(90, 150), azar.Entero(20, 50)));
        p.drawEllipse(c, azar.Entre(4, 8), azar.Entre(3, 6));
    }
    p.end();
    AplicaGrano(img, 4, 80);
    return img;
}
