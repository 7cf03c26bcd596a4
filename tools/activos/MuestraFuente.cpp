// FUENTE.JPG: a fountain of three basins in a paved square, with arcades
// and coloured houses around, benches, lamps, pigeons and people.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

// A basin seen a little from above: a stone rim around water.
void PintaPila(QPainter &p, QPointF c, double rx, double ry, double alto, uint32_t semilla) {
    Azar azar(semilla);
    QPainterPath cuerpo;
    cuerpo.moveTo(c.x() - rx, c.y());
    cuerpo.arcTo(QRectF(c.x() - rx, c.y() + alto - ry, 2 * rx, 2 * ry), 180, 180);
    cuerpo.lineTo(c.x() + rx, c.y());
    cuerpo.closeSubpath();
    QLinearGradient piedra(c.x() - rx, 0, c.x() + rx, 0);
    piedra.setColorAt(0, QColor(150, 140, 125));
    piedra.setColorAt(0.35, QColor(235, 225, 205));
    piedra.setColorAt(1, QColor(120, 110, 95));
    p.setPen(QPen(QColor(90, 85, 75), 1.5));
    p.setBrush(piedra);
    p.drawPath(cuerpo);
    for (int k = 1; k < 12; ++k) {
        const double x = c.x() - rx + k * 2 * rx / 12;
        const double dy = ry * std::sqrt(std::max(0.0, 1 - std::pow((x - c.x()) / rx, 2)));
        p.drawLine(QPointF(x, c.y() + dy), QPointF(x, c.y() + dy + alto));
    }
    p.setBrush(QColor(225, 215, 195));
    p.drawEllipse(c, rx, ry);
    QRadialGradient agua(c.x() - rx * 0.2, c.y() - ry * 0.3, rx);
    agua.setColorAt(0, QColor(140, 210, 235));
    agua.setColorAt(1, QColor(30, 110, 160));
    p.setBrush(agua);
    p.drawEllipse(c, rx * 0.92, ry * 0.85);
    // Ripples on the water.
    p.setBrush(Qt::NoBrush);
    for (int k = 0; k < static_cast<int>(rx / 2); ++k) {
        const double a = azar.Entre(0, 2 * M_PI), r = std::sqrt(azar.Real()) * 0.85;
        const QPointF q = c + QPointF(std::cos(a) * rx * r, std::sin(a) * ry * r * 0.9);
        p.setPen(QPen(QColor(230, 250, 255, azar.Entero(80, 200)), 1.2));
        p.drawArc(QRectF(q.x() - 8, q.y() - 2, 16, 4), 0, 180 * 16);
    }
}

// Falling water: arcs of drops from a spout.
void PintaChorros(QPainter &p, QPointF desde, double ancho, double caida, uint32_t semilla) {
    Azar azar(semilla);
    for (int k = 0; k < 26; ++k) {
        const double lado = (k % 2 == 0) ? 1 : -1;
        const double dx = lado * ancho * azar.Entre(0.6, 1.0);
        QPainterPath chorro;
        chorro.moveTo(desde);
        chorro.quadTo(desde + QPointF(dx * 0.6, -caida * 0.25), desde + QPointF(dx, caida));
        p.setPen(QPen(QColor(220, 240, 255, azar.Entero(90, 170)), azar.Entre(1, 2.5)));
        p.setBrush(Qt::NoBrush);
        p.drawPath(chorro);
    }
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 90; ++k) {
        p.setBrush(QColor(240, 250, 255, azar.Entero(120, 230)));
        p.drawEllipse(desde + QPointF(azar.Entre(-ancho, ancho), azar.Entre(0, caida)),
                      azar.Entre(0.8, 2), azar.Entre(0.8, 2));
    }
}

} // namespace

QImage GeneraMuestraFuente() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, 120), QColor(60, 130, 220), QColor(170, 210, 245), 1.0, 101);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    Azar azar(102);
    // The houses around the square: coloured fronts, arcades on the ground.
    double x = -10;
    int n = 0;
    while (x < w) {
        const double ancho = azar.Entre(110, 160);
        const double alto = azar.Entre(40, 110);
        const QColor color =
            QColor::fromHsv(azar.Entero(0, 60), azar.Entero(60, 150), azar.Entero(190, 240));
        const QRectF frente(x, alto, ancho, 320 - alto);
        p.setPen(Qt::NoPen);
        p.setBrush(BrochaRuido(color, 25, 3, 103 + n));
        p.drawRect(frente);
        p.fillRect(QRectF(x, alto - 10, ancho, 10), color.darker(150));
        for (double vy = alto + 20; vy < 230; vy += 55) {
            for (double vx = x + 14; vx < x + ancho - 30; vx += 38) {
                PintaVentana(p, QRectF(vx, vy, 20, 32), QColor(245, 245, 240),
                             n % 2 ? QColor(40, 110, 60) : QColor(150, 60, 40),
                             104 + static_cast<int>(vx + vy));
                p.fillRect(QRectF(vx - 6, vy + 34, 32, 4), QColor(30, 30, 30));
            }
        }
        // The arcade: dark arches between pillars.
        for (double ax = x + 6; ax < x + ancho - 30; ax += 42) {
            QPainterPath arco;
            arco.moveTo(ax, 320);
            arco.lineTo(ax, 262);
            arco.arcTo(QRectF(ax, 245, 34, 34), 180, -180);
            arco.lineTo(ax + 34, 320);
            arco.closeSubpath();
            p.setBrush(QColor(50, 40, 40));
            p.drawPath(arco);
            // A shop window or a table inside.
            p.setBrush(ColorVivo(105, static_cast<int>(ax)).darker(140));
            p.drawRect(QRectF(ax + 6, 290, 22, 22));
        }
        x += ancho;
        ++n;
    }
    // The paving: cobbles growing towards us.
    for (int fila = 0; fila < 30; ++fila) {
        const double y0 = 320 + 280 * std::pow(fila / 30.0, 1.3);
        const double y1 = 320 + 280 * std::pow((fila + 1) / 30.0, 1.3);
        PintaAdoquines(p, QRectF(0, y0, w, y1 - y0 + 1), std::max(6.0, (y1 - y0) * 1.1),
                       110 + fila);
    }
    // Trees in pots, benches and lamps.
    for (const double tx : {70.0, 730.0}) {
        p.setBrush(QColor(110, 70, 40));
        p.drawRect(QRectF(tx - 4, 260, 8, 90));
        PintaFollaje(p, {tx, 240}, 55, 60, QColor(50, 130, 50), 1200, 140 + static_cast<int>(tx));
        p.setBrush(BrochaRuido(QColor(170, 90, 50), 30, 3, 141));
        p.drawRect(QRectF(tx - 26, 340, 52, 34));
    }
    for (const double bx : {150.0, 580.0}) {
        p.setBrush(QColor(40, 90, 50));
        for (int k = 0; k < 3; ++k) {
            p.drawRect(QRectF(bx, 390 + k * 7, 90, 4));
        }
        p.setBrush(QColor(40, 40, 40));
        p.drawRect(QRectF(bx + 5, 410, 5, 20));
        p.drawRect(QRectF(bx + 80, 410, 5, 20));
    }
    for (const double lx : {120.0, 680.0}) {
        p.setBrush(QColor(30, 30, 35));
        p.drawRect(QRectF(lx - 3, 250, 6, 220));
        p.drawRect(QRectF(lx - 10, 465, 20, 8));
        p.setBrush(QColor(255, 235, 160));
        p.drawRoundedRect(QRectF(lx - 12, 225, 24, 30), 5, 5);
        p.setBrush(QColor(30, 30, 35));
        p.drawPolygon(QPolygonF({QPointF(lx - 16, 228), QPointF(lx + 16, 228), QPointF(lx, 212)}));
    }
    // The fountain: the great basin, the column, two smaller bowls, water.
    PintaPila(p, {400, 440}, 250, 62, 40, 120);
    p.setBrush(QColor(210, 200, 180));
    p.setPen(QPen(QColor(100, 95, 85), 1.5));
    p.drawRect(QRectF(385, 300, 30, 145));
    PintaChorros(p, {400, 332}, 120, 110, 121);
    PintaPila(p, {400, 330}, 110, 26, 22, 122);
    p.setBrush(QColor(210, 200, 180));
    p.drawRect(QRectF(392, 230, 16, 100));
    PintaChorros(p, {400, 238}, 60, 90, 123);
    PintaPila(p, {400, 240}, 55, 13, 14, 124);
    PintaChorros(p, {400, 200}, 30, 40, 125);
    p.setPen(QPen(QColor(235, 248, 255, 200), 3));
    p.drawLine(QPointF(400, 238), QPointF(400, 196));
    // Pigeons and people in the square.
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 22; ++k) {
        const QPointF c(azar.Entre(40, 760), azar.Entre(520, 590));
        p.setBrush(QColor(azar.Entero(100, 150), azar.Entero(100, 150), azar.Entero(110, 160)));
        p.drawEllipse(c, 9, 6);
        p.drawEllipse(c + QPointF(k % 2 ? 8 : -8, -5), 4, 4);
        p.setBrush(QColor(90, 150, 120));
        p.drawEllipse(c + QPointF(k % 2 ? 5 : -5, -2), 3, 2);
    }
    for (int k = 0; k < 9; ++k) {
        const double y = azar.Entre(340, 560);
        double px = azar.Entre(20, 780);
        if (px > 130 && px < 670 && y < 560) {
            px = px < 400 ? 120 - (400 - px) * 0.35 : 680 + (px - 400) * 0.35;
        }
        PintaPersona(p, {px, y}, 40 + (y - 330) * 0.4, 150 + k);
    }
    p.end();
    AplicaGrano(img, 4, 100);
    return img;
}
