// CASA.JPG: a house with a tiled roof, shutters and flower boxes, in a
// garden with a fence, a tree and a path.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Letras.h"
#include "Muestras.h"
#include "Texturas.h"

QImage GeneraMuestraCasa() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, 330), QColor(50, 120, 220), QColor(170, 215, 250), 0.8, 41);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    // Sun, far hills and a row of trees.
    QRadialGradient sol(110, 80, 60);
    sol.setColorAt(0, QColor(255, 255, 220));
    sol.setColorAt(0.4, QColor(255, 230, 100));
    sol.setColorAt(1, QColor(255, 230, 100, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(sol);
    p.drawEllipse(QPointF(110, 80), 60, 60);
    QPainterPath colinas;
    colinas.moveTo(0, 300);
    colinas.cubicTo(150, 220, 300, 260, 420, 270);
    colinas.cubicTo(560, 250, 700, 210, 800, 260);
    colinas.lineTo(800, 340);
    colinas.lineTo(0, 340);
    colinas.closeSubpath();
    RellenaRuido(p, colinas, QColor(100, 150, 100), 30, 10, 42);
    Azar azar(43);
    for (int k = 0; k < 28; ++k) {
        const double x = k * 30 + azar.Entre(-8, 8);
        PintaFollaje(p, {x, 300 + azar.Entre(-15, 10)}, 18, 24, QColor(50, 110, 60), 120, 44 + k);
    }
    // The lawn.
    PintaHierba(p, QRectF(0, 320, w, 280), 45);
    // The house: plaster walls, the shade of the eaves.
    const QRectF muro(180, 250, 440, 240);
    RellenaRuido(
        p,
        [&] {
            QPainterPath c;
            c.addRect(muro);
            return c;
        }(),
        QColor(240, 225, 190), 28, 4, 46);
    PintaLadrillos(p, QRectF(180, 470, 440, 20), QColor(150, 140, 130), 30, 10, 47);
    // The chimney before the roof.
    PintaLadrillos(p, QRectF(500, 120, 40, 90), QColor(170, 70, 50), 14, 7, 48);
    p.fillRect(QRectF(495, 112, 50, 10), QColor(110, 60, 50));
    for (int k = 0; k < 6; ++k) {
        p.setBrush(QColor(230, 230, 235, 150 - k * 20));
        p.drawEllipse(QPointF(520 + k * 12 + azar.Entre(-4, 4), 95 - k * 16), 10 + k * 3,
                      8 + k * 2);
    }
    QPainterPath tejado;
    tejado.moveTo(150, 260);
    tejado.lineTo(260, 130);
    tejado.lineTo(540, 130);
    tejado.lineTo(650, 260);
    tejado.closeSubpath();
    p.save();
    p.setClipPath(tejado);
    PintaTejas(p, QRectF(150, 130, 500, 130), QColor(190, 60, 40), 20, 49);
    p.restore();
    p.setPen(QPen(QColor(90, 30, 20), 3));
    p.setBrush(Qt::NoBrush);
    p.drawPath(tejado);
    p.fillRect(QRectF(180, 260, 440, 8), QColor(0, 0, 0, 50));
    // A round attic window in the roof.
    p.setPen(QPen(Qt::white, 4));
    p.setBrush(QColor(60, 90, 130));
    p.drawEllipse(QPointF(400, 190), 22, 22);
    p.drawLine(QPointF(378, 190), QPointF(422, 190));
    p.drawLine(QPointF(400, 168), QPointF(400, 212));
    // Windows with green shutters and flower boxes.
    const QRectF ventanas[] = {
        {230, 295, 60, 70}, {510, 295, 60, 70}, {230, 390, 60, 65}, {510, 390, 60, 65}};
    int n = 0;
    for (const QRectF &v : ventanas) {
        PintaVentana(p, v, Qt::white, QColor(40, 120, 70), 50 + n);
        const QRectF caja(v.left() - 4, v.bottom() + 3, v.width() + 8, 10);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(140, 80, 40));
        p.drawRect(caja);
        for (int k = 0; k < 16; ++k) {
            p.setBrush(k % 3 == 0 ? QColor(40, 130, 40) : ColorVivo(51 + n, k));
            p.drawEllipse(QPointF(caja.left() + 3 + k * 4.3, caja.top() - azar.Entre(0, 6)), 3.2,
                          3.2);
        }
        ++n;
    }
    // The door with its steps, lamp and number.
    const QRectF puerta(365, 345, 70, 125);
    p.setPen(QPen(QColor(240, 240, 240), 6));
    p.setBrush(BrochaRuido(QColor(130, 40, 40), 30, 3, 52));
    p.drawRect(puerta);
    p.setPen(QPen(QColor(90, 20, 20), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(puerta.adjusted(10, 10, -40, -70));
    p.drawRect(puerta.adjusted(40, 10, -10, -70));
    p.drawRect(puerta.adjusted(10, 65, -40, -10));
    p.drawRect(puerta.adjusted(40, 65, -10, -10));
    p.setBrush(QColor(230, 190, 60));
    p.drawEllipse(QPointF(425, 410), 4, 4);
    p.fillRect(QRectF(350, 470, 100, 10), QColor(170, 160, 150));
    p.fillRect(QRectF(340, 480, 120, 10), QColor(150, 140, 130));
    p.setBrush(QColor(30, 30, 30));
    p.drawRect(QRectF(450, 352, 10, 18));
    p.setBrush(QColor(255, 220, 120));
    p.drawRect(QRectF(452, 356, 6, 10));
    p.setBrush(QColor(30, 80, 170));
    p.drawRect(QRectF(385, 320, 30, 18));
    PintaTextoCentrado(p, QRectF(385, 320, 30, 18), "7", 14, Letra::SansNegrita, Qt::white);
    // A climbing rose on the left wall.
    PintaFollaje(p, {200, 400}, 30, 90, QColor(50, 120, 50), 500, 53);
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 40; ++k) {
        p.setBrush(QColor(230, 40 + azar.Entero(0, 60), 90));
        p.drawEllipse(QPointF(200 + azar.Entre(-28, 28), 400 + azar.Entre(-85, 85)), 3, 3);
    }
    // The path of flat stones to the gate.
    for (int k = 0; k < 9; ++k) {
        const double y = 498 + k * 12;
        const double ancho = 50 + k * 9;
        const QRectF piedra(400 - ancho / 2 + azar.Entre(-6, 6), y, ancho, 10);
        p.setPen(QPen(QColor(100, 95, 90), 1));
        p.setBrush(BrochaRuido(QColor(190, 180, 165), 30, 3, 54 + k));
        p.drawRoundedRect(piedra, 4, 4);
    }
    // A tree on the right and bushes.
    p.setBrush(BrochaRuido(QColor(100, 70, 40), 30, 3, 55));
    p.setPen(Qt::NoPen);
    QPainterPath tronco;
    tronco.moveTo(690, 560);
    tronco.cubicTo(700, 450, 690, 380, 705, 300);
    tronco.lineTo(725, 300);
    tronco.cubicTo(720, 400, 735, 470, 735, 560);
    tronco.closeSubpath();
    p.drawPath(tronco);
    PintaFollaje(p, {710, 240}, 95, 110, QColor(60, 140, 50), 2600, 56);
    for (int k = 0; k < 30; ++k) {
        p.setBrush(QColor(220, 40, 30));
        p.drawEllipse(QPointF(710 + azar.Entre(-80, 80), 240 + azar.Entre(-90, 90)), 4, 4);
    }
    PintaFollaje(p, {90, 500}, 90, 45, QColor(70, 130, 40), 1200, 57);
    PintaFollaje(p, {560, 505}, 60, 28, QColor(80, 150, 70), 600, 58);
    // A white picket fence along the front.
    for (int x = -10; x < w; x += 22) {
        if (x > 345 && x < 455) {
            continue; // the gate stands open
        }
        QPolygonF tabla({QPointF(x, 590), QPointF(x, 530), QPointF(x + 7, 520),
                         QPointF(x + 14, 530), QPointF(x + 14, 590)});
        p.setPen(QPen(QColor(150, 150, 150), 1));
        p.setBrush(QColor(248, 248, 245));
        p.drawPolygon(tabla);
    }
    p.fillRect(QRectF(0, 540, 350, 7), QColor(230, 230, 228));
    p.fillRect(QRectF(450, 540, 350, 7), QColor(230, 230, 228));
    p.fillRect(QRectF(0, 570, 350, 7), QColor(230, 230, 228));
    p.fillRect(QRectF(450, 570, 350, 7), QColor(230, 230, 228));
    // A mailbox and a cat on the lawn.
    p.setBrush(QColor(200, 30, 30));
    p.drawRoundedRect(QRectF(300, 470, 36, 22), 8, 8);
    p.fillRect(QRectF(314, 492, 8, 40), QColor(90, 70, 50));
    p.setBrush(QColor(60, 60, 60));
    p.drawEllipse(QPointF(620, 560), 22, 13);
    p.drawEllipse(QPointF(640, 545), 10, 9);
    p.drawPolygon(QPolygonF({QPointF(634, 540), QPointF(636, 530), QPointF(641, 538)}));
    p.drawPolygon(QPolygonF({QPointF(642, 538), QPointF(647, 530), QPointF(649, 541)}));
    p.setPen(QPen(QColor(60, 60, 60), 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(600, 560), QPointF(585, 540));
    p.end();
    AplicaGrano(img, 4, 40);
    return img;
}
