// TRANVIA.JPG: a yellow tram with passengers in a street of shops, with
// rails in the cobbles, overhead wires, lamps, trees and people.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Letras.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

// A house front with shop, awning and sign on the ground floor.
void PintaFachada(QPainter &p, const QRectF &r, uint32_t semilla) {
    Azar azar(semilla);
    const QColor color =
        QColor::fromHsv(azar.Entero(0, 359), azar.Entero(40, 120), azar.Entero(170, 235));
    p.setPen(Qt::NoPen);
    p.setBrush(BrochaRuido(color, 25, 3, semilla));
    p.drawRect(r);
    p.fillRect(QRectF(r.left() - 3, r.top(), r.width() + 6, 12), color.darker(140));
    for (double y = r.top() + 28; y < 300; y += 58) {
        for (double x = r.left() + 14; x < r.right() - 26; x += 40) {
            PintaVentana(p, QRectF(x, y, 22, 36), QColor(245, 245, 240),
                         azar.Real() < 0.5 ? QColor(0, 0, 0, 0) : color.darker(170),
                         semilla + static_cast<int>(x + y));
            p.fillRect(QRectF(x - 5, y + 38, 32, 5), QColor(40, 40, 40));
        }
    }
    // The shop: window with goods, a striped awning, a sign.
    const QRectF tienda(r.left() + 8, 330, r.width() - 16, 70);
    p.fillRect(tienda, QColor(40, 50, 60));
    for (int k = 0; k < 14; ++k) {
        p.setBrush(ColorVivo(semilla, k));
        p.drawRoundedRect(QRectF(tienda.left() + 6 + azar.Entre(0, tienda.width() - 22),
                                 tienda.top() + 20 + azar.Entre(0, 40), 12, 10),
                          3, 3);
    }
    const QColor toldo = ColorVivo(semilla, 20);
    for (double x = tienda.left() - 4; x < tienda.right() + 4; x += 12) {
        QPolygonF franja(
            {QPointF(x, 312), QPointF(x + 12, 312), QPointF(x + 16, 336), QPointF(x + 4, 336)});
        p.setBrush(static_cast<int>((x - tienda.left()) / 12) % 2 ? Qt::white : toldo);
        p.drawPolygon(franja);
    }
    p.fillRect(QRectF(r.center().x() - 40, 292, 80, 18), QColor(30, 30, 30));
    const char *nombres[] = {"CAFÉ", "LIBROS", "PAN", "FLORES", "BAZAR", "MODA", "FRUTAS"};
    PintaTextoCentrado(p, QRectF(r.center().x() - 40, 292, 80, 18),
                       QString::fromUtf8(nombres[semilla % 7]), 12, Letra::SansNegrita,
                       QColor(250, 220, 120));
}

} // namespace

QImage GeneraMuestraTranvia() {
    const int w = 800, h = 600;
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    PintaCielo(img, QRect(0, 0, w, 120), QColor(70, 140, 220), QColor(190, 220, 245), 1.0, 201);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    Azar azar(202);
    // The houses along the street.
    double x = -20;
    int n = 0;
    while (x < w) {
        const double ancho = azar.Entre(120, 170);
        PintaFachada(p, QRectF(x, azar.Entre(20, 90), ancho, 400), 203 + n);
        x += ancho;
        ++n;
    }
    // The pavement and the kerb.
    for (double y = 400; y < 430; y += 10) {
        for (double px = (static_cast<int>(y) / 10 % 2) * -10; px < w; px += 20) {
            p.setPen(QPen(QColor(150, 140, 130), 1));
            p.setBrush(QColor(200 + azar.Entero(-15, 15), 190 + azar.Entero(-15, 10), 170));
            p.drawRect(QRectF(px, y, 20, 10));
        }
    }
    p.fillRect(QRectF(0, 430, w, 8), QColor(140, 135, 130));
    // The street: cobbles with two pairs of rails.
    PintaAdoquines(p, QRectF(0, 438, w, 162), 14, 210);
    for (const double y : {510.0, 540.0, 565.0, 595.0}) {
        p.fillRect(QRectF(0, y, w, 5), QColor(170, 170, 175));
        p.fillRect(QRectF(0, y + 5, w, 2), QColor(60, 60, 60));
    }
    // Lamps and trees on the pavement.
    for (const double lx : {60.0, 420.0, 770.0}) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(30, 50, 40));
        p.drawRect(QRectF(lx - 3, 250, 6, 170));
        p.setBrush(QColor(255, 235, 160));
        p.drawEllipse(QPointF(lx, 245), 12, 12);
    }
    for (const double tx : {230.0, 610.0}) {
        p.setBrush(QColor(100, 70, 40));
        p.drawRect(QRectF(tx - 5, 300, 10, 120));
        PintaFollaje(p, {tx, 270}, 60, 55, QColor(60, 140, 50), 1300, 220 + static_cast<int>(tx));
    }
    // Overhead wires and their poles.
    p.setPen(QPen(QColor(40, 40, 40), 2));
    p.drawLine(QPointF(0, 150), QPointF(w, 158));
    p.drawLine(QPointF(0, 170), QPointF(w, 176));
    // The tram: body, roof, windows with passengers, doors, number, wheels.
    const QRectF cuerpo(110, 300, 560, 210);
    QPainterPath caja;
    caja.addRoundedRect(cuerpo, 30, 30);
    QLinearGradient amarillo(0, 300, 0, 510);
    amarillo.setColorAt(0, QColor(255, 225, 80));
    amarillo.setColorAt(0.55, QColor(245, 190, 30));
    amarillo.setColorAt(0.56, QColor(250, 250, 245));
    amarillo.setColorAt(0.62, QColor(250, 250, 245));
    amarillo.setColorAt(0.63, QColor(240, 185, 30));
    amarillo.setColorAt(1, QColor(190, 130, 20));
    p.setPen(QPen(QColor(90, 60, 10), 3));
    p.setBrush(amarillo);
    p.drawPath(caja);
    p.setBrush(QColor(90, 90, 95));
    p.drawRoundedRect(QRectF(140, 284, 500, 22), 10, 10);
    // The trolley pole up to the wire.
    p.setPen(QPen(QColor(40, 40, 40), 4));
    p.drawLine(QPointF(420, 285), QPointF(520, 172));
    p.setBrush(QColor(60, 60, 60));
    p.drawRect(QRectF(400, 278, 40, 8));
    for (int k = 0; k < 7; ++k) {
        const QRectF v(140 + k * 72, 325, 56, 72);
        if (k == 2 || k == 5) {
            // A door with two panes.
            p.setPen(QPen(QColor(90, 60, 10), 2));
            p.setBrush(QColor(200, 140, 20));
            p.drawRect(QRectF(v.left(), v.top(), v.width(), 170));
            p.setBrush(QColor(120, 170, 210));
            p.drawRect(QRectF(v.left() + 5, v.top() + 5, v.width() / 2 - 7, 80));
            p.drawRect(QRectF(v.center().x() + 2, v.top() + 5, v.width() / 2 - 7, 80));
            continue;
        }
        QLinearGradient vidrio(v.topLeft(), v.bottomRight());
        vidrio.setColorAt(0, QColor(170, 210, 235));
        vidrio.setColorAt(1, QColor(60, 100, 140));
        p.setPen(QPen(QColor(90, 60, 10), 3));
        p.setBrush(vidrio);
        p.drawRoundedRect(v, 6, 6);
        // A passenger in each window.
        p.save();
        p.setClipRect(v);
        PintaPersona(p, v.center() + QPointF(azar.Entre(-10, 10), 60), 90, 240 + k);
        p.restore();
        p.setPen(QPen(QColor(255, 255, 255, 120), 3));
        p.drawLine(v.topLeft() + QPointF(8, 30), v.topLeft() + QPointF(30, 8));
    }
    // Front and rear: the destination board and the number.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 30, 30));
    p.drawRoundedRect(QRectF(120, 308, 16, 90), 4, 4);
    p.drawRoundedRect(QRectF(644, 308, 16, 90), 4, 4);
    p.setBrush(QColor(20, 20, 25));
    p.drawRect(QRectF(250, 290, 280, 0));
    p.setBrush(QColor(250, 250, 240));
    p.drawEllipse(QPointF(658, 470), 10, 10);
    p.setBrush(QColor(230, 40, 30));
    p.drawEllipse(QPointF(122, 470), 8, 8);
    PintaTextoCentrado(p, QRectF(300, 440, 180, 40), "28  PLAZA", 22, Letra::SansNegrita,
                       QColor(150, 20, 20));
    // Bogies and wheels on the rail.
    for (const double rx : {200.0, 290.0, 490.0, 580.0}) {
        QRadialGradient rueda(rx - 4, 510, 24);
        rueda.setColorAt(0, QColor(140, 140, 145));
        rueda.setColorAt(1, QColor(30, 30, 30));
        p.setPen(QPen(QColor(20, 20, 20), 2));
        p.setBrush(rueda);
        p.drawEllipse(QPointF(rx, 512), 22, 22);
        p.setBrush(QColor(200, 200, 200));
        p.drawEllipse(QPointF(rx, 512), 5, 5);
    }
    p.fillRect(QRectF(180, 496, 130, 10), QColor(50, 50, 50));
    p.fillRect(QRectF(470, 496, 130, 10), QColor(50, 50, 50));
    // People on the pavement and a cyclist's bicycle.
    for (int k = 0; k < 10; ++k) {
        double px = azar.Entre(10, 790);
        if (px > 100 && px < 680) {
            px = px < 390 ? px * 0.25 : 690 + (px - 390) * 0.35;
        }
        PintaPersona(p, {px, azar.Entre(405, 428)}, azar.Entre(70, 85), 250 + k);
    }
    p.setPen(QPen(QColor(30, 30, 30), 3));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(715, 570), 20, 20);
    p.drawEllipse(QPointF(775, 570), 20, 20);
    p.setPen(QPen(QColor(20, 90, 200), 4));
    p.drawLine(QPointF(715, 570), QPointF(740, 540));
    p.drawLine(QPointF(740, 540), QPointF(775, 570));
    p.drawLine(QPointF(740, 540), QPointF(765, 538));
    p.drawLine(QPointF(735, 532), QPointF(740, 540));
    p.end();
    AplicaGrano(img, 4, 200);
    return img;
}
