// PALMERAS.JPG: palm trees on a beach, the sea, a boat and an island.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

// A palm: a curved trunk of rings, a crown of fronds made of leaflets and
// a cluster of coconuts.
void PintaPalmera(QPainter &p, QPointF base, QPointF copa, double grosor, uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF control((base.x() + copa.x()) / 2 + (base.x() - copa.x()) * 0.6,
                          (base.y() + copa.y()) / 2);
    const int anillos = 34;
    for (int k = 0; k <= anillos; ++k) {
        const double t = static_cast<double>(k) / anillos;
        const QPointF q = base * (1 - t) * (1 - t) + control * 2 * t * (1 - t) + copa * t * t;
        const double g = grosor * (1 - 0.45 * t);
        QLinearGradient tronco(q.x() - g, 0, q.x() + g, 0);
        const int d = azar.Entero(-12, 12);
        tronco.setColorAt(0, QColor(150 + d, 110 + d, 70 + d));
        tronco.setColorAt(0.6, QColor(110 + d, 75 + d, 45 + d));
        tronco.setColorAt(1, QColor(70 + d, 45 + d, 25 + d));
        p.setPen(QPen(QColor(60, 40, 20), 1));
        p.setBrush(tronco);
        p.drawEllipse(q, g, g * 0.55);
    }
    // The fronds: a spine bending down, leaflets on both sides.
    const int hojas = 9;
    for (int h = 0; h < hojas; ++h) {
        const double a = -M_PI / 2 + (h - (hojas - 1) / 2.0) * (2 * M_PI / hojas) * 0.95 +
                         azar.Entre(-0.15, 0.15);
        const double largo = grosor * azar.Entre(6.5, 8.5);
        QPointF previo = copa;
        for (int k = 1; k <= 22; ++k) {
            const double t = k / 22.0;
            const QPointF q = copa + QPointF(std::cos(a) * largo * t,
                                             std::sin(a) * largo * t + largo * 0.55 * t * t);
            const QPointF dir = q - previo;
            const QPointF n(-dir.y(), dir.x());
            const double ln = std::hypot(n.x(), n.y()) + 1e-9;
            const double hoja = grosor * 1.6 * std::sin(M_PI * std::min(1.0, t * 1.1 + 0.1));
            const QColor verde(azar.Entero(30, 70), azar.Entero(110, 160), azar.Entero(30, 60));
            p.setPen(QPen(verde, 2.2, Qt::SolidLine, Qt::RoundCap));
            for (const double lado : {-1.0, 1.0}) {
                const QPointF punta = q + n / ln * hoja * lado + dir * 1.6;
                p.drawLine(q, punta);
            }
            p.setPen(QPen(QColor(90, 110, 40), 2.5, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(previo, q);
            previo = q;
        }
    }
    for (int k = 0; k < 5; ++k) {
        const QPointF c = copa + QPointF(azar.Entre(-grosor, grosor), azar.Entre(2, grosor * 1.4));
        QRadialGradient coco(c - QPointF(2, 2), grosor * 0.6);
        coco.setColorAt(0, QColor(150, 110, 50));
        coco.setColorAt(1, QColor(70, 45, 15));
        p.setPen(Qt::NoPen);
        p.setBrush(coco);
        p.drawEllipse(c, grosor * 0.45, grosor * 0.42);
    }
    p.restore();
}

} // namespace

QImage GeneraMuestraPalmeras() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, 300), QColor(40, 110, 210), QColor(255, 200, 150), 0.9, 31);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    // The sun low in the west, with its glow.
    QRadialGradient sol(610, 190, 90);
    sol.setColorAt(0, QColor(255, 250, 210));
    sol.setColorAt(0.25, QColor(255, 230, 120, 230));
    sol.setColorAt(1, QColor(255, 180, 80, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(sol);
    p.drawEllipse(QPointF(610, 190), 90, 90);
    // An island with hills and trees far away.
    QPainterPath isla;
    isla.moveTo(60, 300);
    isla.cubicTo(110, 240, 180, 250, 220, 275);
    isla.cubicTo(250, 255, 300, 265, 340, 300);
    isla.closeSubpath();
    RellenaRuido(p, isla, QColor(70, 110, 90), 25, 8, 32);
    // The sea: bands of blue with short light strokes of waves.
    QLinearGradient mar(0, 298, 0, 430);
    mar.setColorAt(0, QColor(30, 90, 150));
    mar.setColorAt(0.6, QColor(20, 140, 170));
    mar.setColorAt(1, QColor(60, 190, 190));
    p.fillRect(QRect(0, 298, w, 140), mar);
    Azar azar(33);
    for (int k = 0; k < 1500; ++k) {
        const double y = azar.Entre(300, 440);
        const double x = azar.Entre(0, w);
        const double l = 4 + (y - 300) * 0.12 * azar.Entre(0.5, 1.5);
        const int a = azar.Entero(70, 200);
        p.setPen(QPen(k % 3 == 0 ? QColor(10, 60, 110, a) : QColor(230, 250, 255, a),
                      1 + (y - 300) / 90));
        p.drawLine(QPointF(x, y), QPointF(x + l, y));
    }
    // A sailing boat.
    QPainterPath casco;
    casco.moveTo(420, 335);
    casco.lineTo(490, 335);
    casco.lineTo(478, 347);
    casco.lineTo(430, 347);
    casco.closeSubpath();
    p.setBrush(QColor(160, 40, 30));
    p.drawPath(casco);
    p.setBrush(QColor(250, 250, 240));
    p.drawPolygon(QPolygonF({QPointF(455, 270), QPointF(455, 332), QPointF(420, 332)}));
    p.setBrush(QColor(240, 200, 60));
    p.drawPolygon(QPolygonF({QPointF(459, 280), QPointF(459, 332), QPointF(488, 332)}));
    p.setPen(QPen(QColor(60, 40, 20), 2));
    p.drawLine(QPointF(457, 265), QPointF(457, 336));
    // The sand, the wet edge and the foam.
    QPainterPath arena;
    arena.moveTo(0, 425);
    for (int x = 0; x <= w; x += 20) {
        arena.lineTo(x, 425 + 8 * std::sin(x / 60.0) + 4 * std::sin(x / 17.0));
    }
    arena.lineTo(w, h);
    arena.lineTo(0, h);
    arena.closeSubpath();
    RellenaRuido(p, arena, QColor(225, 195, 140), 40, 5, 34);
    p.setPen(QPen(QColor(255, 255, 255, 220), 5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    QPainterPath espuma;
    for (int x = 0; x <= w; x += 10) {
        const QPointF q(x, 423 + 8 * std::sin(x / 60.0) + 4 * std::sin(x / 17.0));
        x == 0 ? espuma.moveTo(q) : espuma.lineTo(q);
    }
    p.drawPath(espuma);
    p.setPen(QPen(QColor(160, 130, 90, 120), 8));
    p.drawPath(espuma.translated(0, 10));
    // Shells, pebbles and footprints on the sand.
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 260; ++k) {
        const QPointF c(azar.Entre(0, w), azar.Entre(445, h));
        const QColor col = k % 4 == 0 ? ColorVivo(35, k).lighter(140)
                                      : QColor(azar.Entero(150, 240), azar.Entero(130, 210), 150);
        p.setBrush(col);
        p.drawEllipse(c, azar.Entre(1.5, 4), azar.Entre(1, 3));
    }
    for (int k = 0; k < 14; ++k) {
        const QPointF c(120 + k * 38, 590 - k * 11 + (k % 2) * 10);
        p.setBrush(QColor(170, 140, 95));
        p.drawEllipse(c, 6, 11);
    }
    // A striped umbrella, a towel and a ball.
    p.setPen(QPen(QColor(90, 90, 90), 3));
    p.drawLine(QPointF(560, 560), QPointF(585, 420));
    for (int k = 0; k < 8; ++k) {
        p.setPen(QPen(QColor(80, 30, 30), 1));
        p.setBrush(k % 2 ? QColor(240, 240, 240) : QColor(220, 40, 50));
        p.drawPie(QRectF(500, 390, 170, 70), (k * 180 / 8) * 16, (180 / 8) * 16);
    }
    QPolygonF toalla({QPointF(470, 555), QPointF(600, 540), QPointF(640, 590), QPointF(500, 600)});
    p.setBrush(QColor(40, 120, 220));
    p.drawPolygon(toalla);
    p.setPen(QPen(QColor(255, 230, 60), 5));
    p.drawLine(QPointF(480, 568), QPointF(610, 553));
    p.drawLine(QPointF(490, 584), QPointF(625, 570));
    QRadialGradient pelota(705, 520, 24);
    pelota.setColorAt(0, Qt::white);
    pelota.setColorAt(1, QColor(230, 90, 30));
    p.setPen(QPen(QColor(90, 30, 10), 1.5));
    p.setBrush(pelota);
    p.drawEllipse(QPointF(712, 528), 22, 22);
    p.setPen(QPen(QColor(40, 80, 210), 4));
    p.drawArc(QRectF(690, 506, 44, 44), 30 * 16, 120 * 16);
    // Gulls.
    p.setPen(QPen(QColor(40, 40, 50), 2));
    for (int k = 0; k < 9; ++k) {
        const QPointF c(azar.Entre(80, 760), azar.Entre(40, 220));
        const double s = azar.Entre(5, 10);
        p.drawLine(c, c + QPointF(-s, -s * 0.5));
        p.drawLine(c, c + QPointF(s, -s * 0.5));
    }
    // The palms, the nearest last.
    PintaPalmera(p, {700, 470}, {650, 130}, 14, 36);
    PintaPalmera(p, {130, 600}, {250, 90}, 22, 37);
    PintaPalmera(p, {260, 520}, {380, 200}, 16, 38);
    // Green shrubs at the foot of the palms.
    PintaFollaje(p, {140, 585}, 110, 35, QColor(60, 140, 50), 900, 39);
    PintaFollaje(p, {720, 470}, 70, 22, QColor(80, 150, 60), 500, 40);
    p.end();
    AplicaGrano(img, 4, 30);
    return img;
}
