// Images 1 to 6 of the strip: help, customisation, model, shuffle, hidden
// pieces and placed pieces.
#include <QLinearGradient>
#include <QRadialGradient>

#include "Iconos.h"
#include "Pinceles.h"

namespace {
const QColor Amarillo(250, 214, 40);
const QColor Rojo(214, 30, 30);
const QColor Verde(30, 160, 50);
} // namespace

std::vector<QImage> CapasAyuda() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 44, 44);
    g.setColorAt(0, QColor(70, 130, 240));
    g.setColorAt(1, QColor(10, 40, 170));
    QPainterPath cuadro;
    cuadro.addRoundedRect(QRectF(1, 1, 44, 44), 3.5, 3.5);
    RellenaConBorde(p, cuadro, g, QColor(0, 20, 90));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 70));
    p.drawRoundedRect(QRectF(4, 4, 38, 10), 3, 3);
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(19, 20, 8, 19), 2, 2);
    p.drawRoundedRect(QRectF(15, 35.5, 16, 3.5), 1, 1);
    QRadialGradient punto(21.5, 10.5, 6);
    punto.setColorAt(0, QColor(255, 120, 110));
    punto.setColorAt(1, QColor(200, 10, 10));
    p.setBrush(punto);
    p.setPen(QPen(QColor(120, 0, 0), 1));
    p.drawEllipse(QPointF(23, 12), 4.5, 4.5);
    return {c};
}

std::vector<QImage> CapasPersonaliza() {
    QImage hoja = CapaVacia();
    {
        QPainter p(&hoja);
        p.fillRect(QRect(4, 2, 32, 42), QColor(60, 60, 60));
        p.fillRect(QRect(5, 3, 30, 40), QColor(218, 218, 222));
        for (int f = 0; f < 5; ++f) {
            const int y = 7 + f * 7;
            p.fillRect(QRect(8, y, 6, 6), QColor(70, 70, 70));
            p.fillRect(QRect(9, y + 1, 4, 4), Qt::white);
            if (f % 2 == 0) {
                p.setPen(QPen(QColor(0, 90, 200), 1.5));
                p.setRenderHint(QPainter::Antialiasing);
                p.drawLine(QPointF(9.5, y + 3), QPointF(11, y + 4.5));
                p.drawLine(QPointF(11, y + 4.5), QPointF(13.5, y + 0.5));
                p.setRenderHint(QPainter::Antialiasing, false);
            }
            p.fillRect(QRect(16, y + 1, 14 - (f * 3) % 7, 2), QColor(90, 90, 100));
            p.fillRect(QRect(16, y + 4, 9 + (f * 5) % 8, 1), QColor(140, 140, 150));
        }
    }
    QImage lapiz = CapaVacia();
    {
        QPainter p(&lapiz);
        p.setRenderHint(QPainter::Antialiasing);
        // Along the line from (10, 36) to (42, 4), six pixels thick.
        p.translate(10, 36);
        p.rotate(-45);
        const double largo = 45.25;
        QPainterPath cuerpo;
        cuerpo.addRect(QRectF(9, -3, largo - 14, 6));
        QLinearGradient g(0, -3, 0, 3);
        g.setColorAt(0, QColor(255, 190, 80));
        g.setColorAt(0.5, QColor(250, 140, 20));
        g.setColorAt(1, QColor(190, 90, 0));
        RellenaConBorde(p, cuerpo, g, QColor(110, 50, 0), 0.8);
        QPainterPath madera;
        madera.moveTo(9, -3);
        madera.lineTo(9, 3);
        madera.lineTo(0, 0);
        madera.closeSubpath();
        RellenaConBorde(p, madera, QColor(236, 200, 150), QColor(110, 70, 30), 0.8);
        QPainterPath mina;
        mina.moveTo(3.5, -1.2);
        mina.lineTo(3.5, 1.2);
        mina.lineTo(0, 0);
        mina.closeSubpath();
        RellenaConBorde(p, mina, QColor(40, 40, 40), QColor(40, 40, 40), 0.8);
        p.fillRect(QRectF(largo - 5, -3, 2, 6), QColor(170, 170, 180));
        QPainterPath goma;
        goma.addRoundedRect(QRectF(largo - 3.5, -3, 4, 6), 1.5, 1.5);
        RellenaConBorde(p, goma, QColor(240, 120, 150), QColor(120, 40, 60), 0.8);
    }
    return {hoja, lapiz};
}

std::vector<QImage> CapasModelo() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.fillRect(QRect(1, 1, 42, 42), QColor(150, 10, 10));
    p.fillRect(QRect(2, 2, 40, 40), QColor(220, 40, 30));
    p.fillRect(QRect(5, 5, 34, 34), QColor(120, 0, 0));
    const QRect vista(6, 6, 32, 32);
    p.setClipRect(vista);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient cielo(0, 6, 0, 30);
    cielo.setColorAt(0, QColor(60, 140, 240));
    cielo.setColorAt(1, QColor(180, 220, 255));
    p.fillRect(vista, cielo);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 220, 40));
    p.drawEllipse(QPointF(31, 12), 4, 4);
    p.setBrush(QColor(70, 160, 60));
    p.drawEllipse(QRectF(-4, 24, 30, 22));
    p.setBrush(QColor(40, 130, 40));
    p.drawEllipse(QRectF(16, 27, 30, 20));
    // A house: white walls, red roof, a door and a window.
    p.setBrush(Qt::white);
    p.setPen(QPen(QColor(60, 60, 60), 0.7));
    p.drawRect(QRectF(20, 24, 11, 9));
    QPolygonF techo;
    techo << QPointF(18.5, 24.5) << QPointF(25.5, 18) << QPointF(32.5, 24.5);
    p.setBrush(QColor(210, 20, 20));
    p.drawPolygon(techo);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(120, 70, 30));
    p.drawRect(QRectF(22, 28, 3, 5));
    p.setBrush(QColor(90, 160, 230));
    p.drawRect(QRectF(27, 26, 3, 3));
    // Two trees.
    for (const QPointF t : {QPointF(11, 24), QPointF(15, 27)}) {
        p.setBrush(QColor(110, 70, 30));
        p.drawRect(QRectF(t.x() - 0.8, t.y(), 1.6, 6));
        p.setBrush(QColor(20, 110, 30));
        p.drawEllipse(t, 3.5, 4.5);
    }
    return {c};
}

std::vector<QImage> CapasBaraja() {
    // Two runs of pieces, each piece touching the next one up and to the
    // right, so that every shadow joins one that a seed reaches.
    QImage c = CapaVacia();
    QPainter p(&c);
    DibujaPiezaCuadrada(p, QRect(2, 2, 10, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(5, 15, 10, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(15, 9, 10, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(25, 2, 10, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(11, 34, 11, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(22, 35, 12, 10), Amarillo);
    DibujaPiezaCuadrada(p, QRect(32, 32, 11, 11), Amarillo);
    return {c};
}

std::vector<QImage> CapasOcultas() {
    QImage c = CapaVacia();
    QPainter p(&c);
    p.fillRect(QRect(3, 4, 39, 35), Qt::black);
    const int xs[] = {3, 16, 29, 42}, ys[] = {4, 16, 27, 39};
    for (int f = 0; f < 3; ++f) {
        for (int k = 0; k < 3; ++k) {
            DibujaPiezaCuadrada(p, QRect(xs[k], ys[f], xs[k + 1] - xs[k], ys[f + 1] - ys[f]),
                                Amarillo);
        }
    }
    p.setRenderHint(QPainter::Antialiasing);
    RellenaConBorde(p, FlechaGruesa(QPointF(22.5, 35), QPointF(22.5, 6), 7, 9), Verde,
                    QColor(0, 70, 10));
    return {c};
}

std::vector<QImage> CapasColocadas() {
    QImage tablero = CapaVacia();
    {
        QPainter p(&tablero);
        p.fillRect(QRect(1, 1, 43, 43), QColor(40, 40, 40));
        p.fillRect(QRect(2, 2, 41, 41), QColor(0xC0, 0xC0, 0xC0));
        for (int k = 1; k < 4; ++k) {
            p.fillRect(QRect(2 + k * 10, 2, 1, 41), QColor(110, 110, 110));
            p.fillRect(QRect(2, 2 + k * 10, 41, 1), QColor(110, 110, 110));
        }
    }
    QImage piezas = CapaVacia();
    {
        QPainter p(&piezas);
        DibujaPiezaCuadrada(p, QRect(10, 2, 9, 7), Rojo);
        DibujaPiezaCuadrada(p, QRect(22, 6, 11, 9), Rojo);
        DibujaPiezaCuadrada(p, QRect(12, 37, 11, 9), Rojo);
        DibujaPiezaCuadrada(p, QRect(34, 30, 11, 9), Rojo);
    }
    return {tablero, piezas};
}
