// Images 7 to 13 of the strip: order, tutor, solver, history book, exit,
// and the cross and tick of the message dialog.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Iconos.h"
#include "Pinceles.h"

namespace {
const QColor Amarillo(250, 214, 40);
const QColor Verde(30, 160, 50);
const QColor VerdeOscuro(0, 70, 10);
} // namespace

std::vector<QImage> CapasOrdena() {
    QImage c = CapaVacia();
    QPainter p(&c);
    const int xs[][2] = {{2, 13}, {16, 27}, {31, 43}};
    const int ys[] = {1, 10, 19, 27, 35, 44};
    for (const auto &x : xs) {
        for (int f = 0; f < 5; ++f) {
            DibujaPiezaCuadrada(p, QRect(x[0], ys[f], x[1] - x[0] + 1, ys[f + 1] - ys[f]),
                                Amarillo);
        }
    }
    return {c};
}

std::vector<QImage> CapasTutor() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF m(23.5, 23.5);
    p.setPen(QPen(QColor(0, 60, 80), 1));
    p.setBrush(QColor(20, 200, 220));
    QPainterPath aro;
    aro.addEllipse(m, 21.5, 21.5);
    aro.addEllipse(m, 10, 10);
    p.drawPath(aro);
    // Four red bands across the ring.
    p.setPen(QPen(QColor(100, 0, 0), 0.8));
    p.setBrush(QColor(220, 30, 30));
    for (int k = 0; k < 4; ++k) {
        QPainterPath banda;
        banda.arcMoveTo(QRectF(m.x() - 21.5, m.y() - 21.5, 43, 43), 45 + k * 90 - 14);
        banda.arcTo(QRectF(m.x() - 21.5, m.y() - 21.5, 43, 43), 45 + k * 90 - 14, 28);
        banda.arcTo(QRectF(m.x() - 10, m.y() - 10, 20, 20), 45 + k * 90 + 14, -28);
        banda.closeSubpath();
        p.drawPath(banda);
    }
    // Light on the upper left, a rope of white dots on the outside.
    p.setPen(QPen(QColor(255, 255, 255, 150), 2, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(m.x() - 16, m.y() - 16, 32, 32), 100 * 16, 60 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(250, 250, 240));
    for (int k = 0; k < 4; ++k) {
        const double a = (k * 90) * M_PI / 180;
        p.drawEllipse(m + QPointF(std::cos(a), -std::sin(a)) * 20, 1.3, 1.3);
    }
    return {c};
}

std::vector<QImage> CapasResuelve() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.fillRect(QRect(8, 8, 36, 36), Qt::black);
    for (int f = 0; f < 4; ++f) {
        for (int k = 0; k < 4; ++k) {
            if ((f == 0 && k == 0) || (f == 0 && k == 1) || (f == 1 && k == 0)) {
                p.fillRect(QRect(8 + k * 9 + 1, 8 + f * 9 + 1, 8, 8), QColor(0x90, 0x90, 0x90));
                continue;
            }
            DibujaPiezaCuadrada(p, QRect(8 + k * 9, 8 + f * 9, 9, 9), Amarillo);
        }
    }
    DibujaPiezaCuadrada(p, QRect(0, 0, 9, 9), Amarillo);
    DibujaPiezaCuadrada(p, QRect(22, 0, 9, 9), Amarillo);
    p.setRenderHint(QPainter::Antialiasing);
    RellenaConBorde(p, FlechaGruesa(QPointF(26, 5), QPointF(21, 14), 3, 5), Verde, VerdeOscuro,
                    0.7);
    RellenaConBorde(p, FlechaGruesa(QPointF(4, 7), QPointF(11, 14), 3, 5), Verde, VerdeOscuro, 0.7);
    return {c};
}

std::vector<QImage> CapasHistorico() {
    QImage c = CapaVacia();
    QPainter p(&c);
    // The pages, seen on the right and at the foot.
    QPolygon hojas;
    hojas << QPoint(8, 5) << QPoint(44, 5) << QPoint(44, 44) << QPoint(6, 44) << QPoint(6, 8);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    p.drawPolygon(hojas);
    p.fillRect(QRect(7, 6, 37, 38), QColor(255, 236, 150));
    for (int y = 38; y < 44; y += 2) {
        p.fillRect(QRect(7, y, 36, 1), QColor(200, 170, 70));
    }
    for (int x = 38; x < 44; x += 2) {
        p.fillRect(QRect(x, 6, 1, 36), QColor(200, 170, 70));
    }
    // The red cover with its spine and a yellow label.
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(2, 0, 38, 0);
    g.setColorAt(0, QColor(140, 0, 0));
    g.setColorAt(0.25, QColor(225, 35, 30));
    g.setColorAt(1, QColor(180, 15, 15));
    QPainterPath tapa;
    tapa.addRoundedRect(QRectF(2, 1, 36, 37), 2, 2);
    RellenaConBorde(p, tapa, g, QColor(70, 0, 0));
    p.fillRect(QRectF(7, 1.5, 1.5, 36), QColor(110, 0, 0));
    p.fillRect(QRectF(12, 8, 21, 12), QColor(250, 214, 40));
    p.setPen(QPen(QColor(130, 80, 0), 1));
    p.drawRect(QRectF(12, 8, 21, 12));
    p.fillRect(QRectF(15, 11, 15, 1.5), QColor(150, 20, 20));
    p.fillRect(QRectF(15, 15, 11, 1.5), QColor(150, 20, 20));
    p.setPen(QPen(QColor(250, 214, 40), 1.2));
    p.drawLine(QPointF(12, 28), QPointF(33, 28));
    p.drawLine(QPointF(12, 31), QPointF(33, 31));
    return {c};
}

std::vector<QImage> CapasSalir() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.setRenderHint(QPainter::Antialiasing);
    // The doorway: the bright outside seen through it.
    QLinearGradient fuera(0, 3, 0, 30);
    fuera.setColorAt(0, QColor(120, 190, 255));
    fuera.setColorAt(0.65, QColor(200, 235, 255));
    fuera.setColorAt(0.66, QColor(90, 190, 70));
    fuera.setColorAt(1, QColor(50, 140, 40));
    QPainterPath hueco;
    hueco.addRect(QRectF(13, 3, 22, 27));
    RellenaConBorde(p, hueco, fuera, QColor(200, 20, 20), 2);
    // The leaf, open towards us on its left hinges.
    QPainterPath hoja;
    hoja.moveTo(13, 3);
    hoja.lineTo(5, 7);
    hoja.lineTo(5, 33);
    hoja.lineTo(13, 29);
    hoja.closeSubpath();
    RellenaConBorde(p, hoja, Qt::white, QColor(200, 20, 20), 1.6);
    p.setPen(QPen(QColor(200, 20, 20), 1));
    p.drawLine(QPointF(7.5, 10), QPointF(11, 8.3));
    p.drawLine(QPointF(7.5, 27), QPointF(11, 25.5));
    p.setBrush(QColor(230, 170, 30));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(7, 19), 1.2, 1.2);
    // The green arrow, from the room out through the door.
    QPainterPath flecha = FlechaGruesa(QPointF(44, 42), QPointF(24, 16), 7, 10);
    RellenaConBorde(p, flecha, Verde, VerdeOscuro, 1);
    return {c};
}

std::vector<QImage> CapasRechazar() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath cruz;
    QPainterPath barra;
    barra.addRoundedRect(QRectF(-19, -5, 38, 10), 3, 3);
    QTransform t;
    t.translate(22, 22);
    t.rotate(45);
    cruz = t.map(barra);
    t.rotate(90);
    cruz = cruz.united(t.map(barra));
    QLinearGradient g(0, 4, 0, 40);
    g.setColorAt(0, QColor(255, 90, 70));
    g.setColorAt(1, QColor(170, 0, 0));
    RellenaConBorde(p, cruz, g, QColor(90, 0, 0), 1.2);
    return {c};
}

std::vector<QImage> CapasAceptar() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath tick;
    tick.moveTo(3, 24);
    tick.lineTo(10, 17);
    tick.lineTo(17, 25);
    tick.lineTo(36, 3);
    tick.lineTo(43, 10);
    tick.lineTo(17, 40);
    tick.closeSubpath();
    QLinearGradient g(0, 3, 0, 40);
    g.setColorAt(0, QColor(90, 220, 90));
    g.setColorAt(1, QColor(0, 120, 20));
    RellenaConBorde(p, tick, g, QColor(0, 60, 0), 1.2);
    return {c};
}

std::vector<QImage> CapasIcono(int i) {
    switch (i) {
    case 1:
        return CapasAyuda();
    case 2:
        return CapasPersonaliza();
    case 3:
        return CapasModelo();
    case 4:
        return CapasBaraja();
    case 5:
        return CapasOcultas();
    case 6:
        return CapasColocadas();
    case 7:
        return CapasOrdena();
    case 8:
        return CapasTutor();
    case 9:
        return CapasResuelve();
    case 10:
        return CapasHistorico();
    case 11:
        return CapasSalir();
    case 12:
        return CapasRechazar();
    case 13:
        return CapasAceptar();
    default:
        return {};
    }
}
