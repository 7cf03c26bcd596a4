#include "Muestra.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace {

constexpr double ANCHO_DISENO = 640.0;
constexpr double ALTO_DISENO = 480.0;

// A small fixed-seed generator, so the flowers stand where they always stood.
class Sucesion {
  public:
    explicit Sucesion(uint32_t semilla) : estado_(semilla) {}
    // The next value in [0, 1).
    double Siguiente() {
        estado_ = estado_ * 1664525u + 1013904223u;
        return (estado_ >> 8) / 16777216.0;
    }

  private:
    uint32_t estado_;
};

void DibujaCielo(QPainter &p) {
    QLinearGradient cielo(0, 0, 0, 300);
    cielo.setColorAt(0.0, QColor(0x1f, 0x6f, 0xc9));
    cielo.setColorAt(0.6, QColor(0x6d, 0xb4, 0xf0));
    cielo.setColorAt(1.0, QColor(0xd8, 0xf0, 0xff));
    p.fillRect(QRectF(0, 0, ANCHO_DISENO, 300), cielo);
}

void DibujaSol(QPainter &p) {
    const QPointF centro(530, 85);
    p.setPen(QPen(QColor(0xff, 0x9f, 0x1a), 5, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 16; ++i) {
        const double a = i * std::numbers::pi / 8;
        const double r1 = 52, r2 = i % 2 == 0 ? 80 : 68;
        p.drawLine(centro + QPointF(r1 * std::cos(a), r1 * std::sin(a)),
                   centro + QPointF(r2 * std::cos(a), r2 * std::sin(a)));
    }
    QRadialGradient luz(centro, 45);
    luz.setColorAt(0.0, QColor(0xff, 0xfb, 0xc8));
    luz.setColorAt(0.5, QColor(0xff, 0xe0, 0x3a));
    luz.setColorAt(1.0, QColor(0xff, 0xa8, 0x00));
    p.setPen(Qt::NoPen);
    p.setBrush(luz);
    p.drawEllipse(centro, 45, 45);
}

void DibujaNube(QPainter &p, double x, double y, double escala) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xd6, 0xe4, 0xf2));
    p.drawEllipse(QPointF(x + 4, y + 6), 42 * escala, 16 * escala);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(x, y), 40 * escala, 15 * escala);
    p.drawEllipse(QPointF(x - 18 * escala, y - 8 * escala), 20 * escala, 14 * escala);
    p.drawEllipse(QPointF(x + 12 * escala, y - 14 * escala), 22 * escala, 18 * escala);
}

void DibujaPajaros(QPainter &p) {
    p.setPen(QPen(QColor(0x20, 0x20, 0x30), 2));
    p.setBrush(Qt::NoBrush);
    const QPointF pajaros[] = {{220, 150}, {245, 135}, {270, 158}, {400, 110}};
    for (const QPointF &c : pajaros) {
        QPainterPath ala;
        ala.moveTo(c + QPointF(-10, -2));
        ala.quadTo(c + QPointF(-5, -8), c);
        ala.quadTo(c + QPointF(5, -8), c + QPointF(10, -2));
        p.drawPath(ala);
    }
}

void DibujaMontanas(QPainter &p) {
    QPainterPath sierra;
    sierra.moveTo(0, 260);
    sierra.lineTo(70, 170);
    sierra.lineTo(130, 225);
    sierra.lineTo(210, 140);
    sierra.lineTo(300, 235);
    sierra.lineTo(360, 190);
    sierra.lineTo(430, 250);
    sierra.lineTo(640, 250);
    sierra.lineTo(640, 300);
    sierra.lineTo(0, 300);
    sierra.closeSubpath();
    QLinearGradient roca(0, 140, 0, 300);
    roca.setColorAt(0.0, QColor(0x6a, 0x6f, 0xa8));
    roca.setColorAt(1.0, QColor(0x9a, 0xa6, 0xd0));
    p.setPen(Qt::NoPen);
    p.setBrush(roca);
    p.drawPath(sierra);
    p.setBrush(Qt::white);
    const QPolygonF nieves[] = {
        QPolygonF({{70, 170}, {52, 193}, {64, 188}, {74, 197}, {86, 185}}),
        QPolygonF({{210, 140}, {184, 168}, {198, 162}, {212, 174}, {226, 160}, {236, 168}}),
        QPolygonF({{360, 190}, {346, 202}, {358, 200}, {372, 204}}),
    };
    for (const QPolygonF &n : nieves) {
        p.drawPolygon(n);
    }
}

void DibujaColinas(QPainter &p) {
    QPainterPath fondo;
    fondo.moveTo(0, 290);
    fondo.cubicTo(120, 230, 260, 250, 360, 280);
    fondo.cubicTo(460, 300, 560, 240, 640, 260);
    fondo.lineTo(640, 480);
    fondo.lineTo(0, 480);
    fondo.closeSubpath();
    QLinearGradient verde(0, 240, 0, 480);
    verde.setColorAt(0.0, QColor(0x8c, 0xd1, 0x4f));
    verde.setColorAt(1.0, QColor(0x3f, 0x8f, 0x2a));
    p.setPen(Qt::NoPen);
    p.setBrush(verde);
    p.drawPath(fondo);

    // Rows of a field on the back hill.
    p.setPen(QPen(QColor(0xd9, 0xc2, 0x4a), 3));
    for (int i = 0; i < 6; ++i) {
        p.drawLine(QPointF(20 + i * 22, 300 - i * 4), QPointF(120 + i * 30, 285 - i * 5));
    }

    QPainterPath delante;
    delante.moveTo(0, 380);
    delante.cubicTo(150, 340, 300, 360, 420, 372);
    delante.cubicTo(520, 382, 600, 360, 640, 350);
    delante.lineTo(640, 480);
    delante.lineTo(0, 480);
    delante.closeSubpath();
    QLinearGradient prado(0, 340, 0, 480);
    prado.setColorAt(0.0, QColor(0x4c, 0xb8, 0x3c));
    prado.setColorAt(1.0, QColor(0x1f, 0x6e, 0x22));
    p.setPen(Qt::NoPen);
    p.setBrush(prado);
    p.drawPath(delante);
}

void DibujaLago(QPainter &p) {
    QLinearGradient agua(0, 318, 0, 352);
    agua.setColorAt(0.0, QColor(0x3a, 0x9a, 0xe0));
    agua.setColorAt(1.0, QColor(0x14, 0x5a, 0xa8));
    p.setPen(QPen(QColor(0x8a, 0x6a, 0x3a), 2));
    p.setBrush(agua);
    p.drawEllipse(QRectF(40, 318, 150, 36));
    p.setPen(QPen(QColor(0xe8, 0xf6, 0xff), 2));
    p.drawLine(QPointF(70, 330), QPointF(100, 330));
    p.drawLine(QPointF(120, 340), QPointF(160, 340));
    // A little boat with a sail.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x8b, 0x3a, 0x1a));
    p.drawPolygon(QPolygonF({{96, 334}, {130, 334}, {124, 342}, {102, 342}}));
    p.setBrush(QColor(0xff, 0xff, 0xff));
    p.drawPolygon(QPolygonF({{112, 333}, {112, 306}, {128, 333}}));
    p.setBrush(QColor(0xe6, 0x2e, 0x2e));
    p.drawPolygon(QPolygonF({{110, 333}, {110, 312}, {99, 333}}));
}

void DibujaVentana(QPainter &p, const QRectF &r) {
    p.setPen(QPen(Qt::white, 3));
    p.setBrush(QColor(0x5a, 0xb4, 0xf0));
    p.drawRect(r);
    p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
    p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    // A flower box below.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x7a, 0x4a, 0x22));
    p.drawRect(QRectF(r.left() - 3, r.bottom() + 2, r.width() + 6, 6));
    const QColor flores[] = {QColor(0xff, 0x30, 0x60), QColor(0xff, 0xd0, 0x00),
                             QColor(0xc0, 0x30, 0xff)};
    for (int i = 0; i < 5; ++i) {
        p.setBrush(flores[i % 3]);
        p.drawEllipse(QPointF(r.left() + 2 + i * r.width() / 4.5, r.bottom() + 1), 3.5, 3.5);
    }
}

void DibujaCasa(QPainter &p) {
    // Chimney and smoke behind the roof.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x9a, 0x3b, 0x26));
    p.drawRect(QRectF(462, 198, 16, 40));
    p.setBrush(QColor(0xe6, 0xe6, 0xee));
    p.drawEllipse(QPointF(474, 188), 9, 7);
    p.drawEllipse(QPointF(486, 174), 12, 9);
    p.drawEllipse(QPointF(502, 156), 15, 11);

    // Walls.
    QLinearGradient pared(360, 0, 510, 0);
    pared.setColorAt(0.0, QColor(0xff, 0xe4, 0xa8));
    pared.setColorAt(1.0, QColor(0xe8, 0xbf, 0x78));
    p.setPen(QPen(QColor(0x80, 0x5a, 0x30), 2));
    p.setBrush(pared);
    p.drawRect(QRectF(370, 255, 140, 100));

    // Roof with rows of tiles.
    const QPolygonF tejado({{356, 258}, {440, 196}, {524, 258}});
    p.setPen(QPen(QColor(0x70, 0x10, 0x10), 2));
    p.setBrush(QColor(0xd2, 0x22, 0x1c));
    p.drawPolygon(tejado);
    p.setPen(QPen(QColor(0x9e, 0x14, 0x12), 2));
    for (int i = 1; i < 4; ++i) {
        const double y = 196 + i * 15.5;
        const double medio = (y - 196) * 84 / 62;
        p.drawLine(QPointF(440 - medio, y), QPointF(440 + medio, y));
    }

    // Door, windows, a round attic window.
    p.setPen(QPen(QColor(0x4a, 0x2a, 0x10), 2));
    p.setBrush(QColor(0x2e, 0x7d, 0x32));
    p.drawRect(QRectF(425, 295, 30, 60));
    p.setBrush(QColor(0xff, 0xd7, 0x00));
    p.drawEllipse(QPointF(450, 327), 3, 3);
    DibujaVentana(p, QRectF(384, 272, 30, 28));
    DibujaVentana(p, QRectF(468, 272, 30, 28));
    p.setPen(QPen(Qt::white, 3));
    p.setBrush(QColor(0x5a, 0xb4, 0xf0));
    p.drawEllipse(QPointF(440, 236), 11, 11);

    // A path from the door.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xd8, 0xb8, 0x84));
    p.drawPolygon(QPolygonF({{428, 356}, {452, 356}, {480, 400}, {420, 400}}));
}

void DibujaValla(QPainter &p) {
    p.setPen(QPen(QColor(0x90, 0x90, 0x90), 1));
    p.setBrush(Qt::white);
    for (int i = 0; i < 9; ++i) {
        const double x = 520 + i * 13;
        p.drawPolygon(QPolygonF({{x, 362}, {x + 4, 354}, {x + 8, 362}, {x + 8, 384}, {x, 384}}));
    }
    p.drawRect(QRectF(516, 366, 120, 4));
    p.drawRect(QRectF(516, 376, 120, 4));
}

void DibujaArbol(QPainter &p, double x, double y, double escala, const QColor &hojas,
                 bool manzanas) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x6b, 0x42, 0x1e));
    p.drawRect(QRectF(x - 6 * escala, y - 40 * escala, 12 * escala, 40 * escala));
    p.setBrush(hojas.darker(130));
    p.drawEllipse(QPointF(x + 6 * escala, y - 50 * escala), 28 * escala, 24 * escala);
    p.setBrush(hojas);
    p.drawEllipse(QPointF(x - 10 * escala, y - 58 * escala), 24 * escala, 22 * escala);
    p.drawEllipse(QPointF(x + 8 * escala, y - 72 * escala), 22 * escala, 20 * escala);
    p.setBrush(hojas.lighter(125));
    p.drawEllipse(QPointF(x - 4 * escala, y - 76 * escala), 10 * escala, 8 * escala);
    if (manzanas) {
        p.setBrush(QColor(0xe0, 0x10, 0x20));
        const QPointF frutas[] = {{-16, -56}, {2, -62}, {16, -48}, {-2, -80}, {14, -74}};
        for (const QPointF &f : frutas) {
            p.drawEllipse(QPointF(x + f.x() * escala, y + f.y() * escala), 3.5 * escala,
                          3.5 * escala);
        }
    }
}

void DibujaAbeto(QPainter &p, double x, double y, double escala) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x5a, 0x36, 0x18));
    p.drawRect(QRectF(x - 4 * escala, y - 14 * escala, 8 * escala, 14 * escala));
    const QColor verdes[] = {QColor(0x0f, 0x5a, 0x2e), QColor(0x16, 0x6e, 0x38),
                             QColor(0x1f, 0x82, 0x44)};
    for (int i = 0; i < 3; ++i) {
        const double base = y - (14 + i * 18) * escala;
        const double media = (26 - i * 6) * escala;
        p.setBrush(verdes[i]);
        p.drawPolygon(QPolygonF({{x - media, base}, {x, base - 34 * escala}, {x + media, base}}));
    }
}

void DibujaTranvia(QPainter &p) {
    // Overhead wire and its poles.
    p.setPen(QPen(QColor(0x30, 0x30, 0x30), 2));
    p.drawLine(QPointF(0, 372), QPointF(640, 372));
    for (const double x : {30.0, 330.0, 610.0}) {
        p.drawLine(QPointF(x, 372), QPointF(x, 448));
    }
    // Rails and sleepers.
    p.setPen(QPen(QColor(0x7a, 0x5a, 0x3a), 4));
    for (int i = 0; i < 33; ++i) {
        p.drawLine(QPointF(i * 20 + 4, 446), QPointF(i * 20 + 12, 462));
    }
    p.setPen(QPen(QColor(0x9a, 0x9a, 0xa8), 3));
    p.drawLine(QPointF(0, 450), QPointF(640, 450));
    p.drawLine(QPointF(0, 458), QPointF(640, 458));

    // Pantograph.
    p.setPen(QPen(QColor(0x20, 0x20, 0x20), 2));
    p.drawLine(QPointF(200, 392), QPointF(215, 374));
    p.drawLine(QPointF(230, 392), QPointF(215, 374));
    p.drawLine(QPointF(205, 374), QPointF(225, 374));

    // Body: yellow with a red band, rounded ends.
    QPainterPath cuerpo;
    cuerpo.addRoundedRect(QRectF(110, 392, 220, 52), 14, 14);
    QLinearGradient chapa(0, 392, 0, 444);
    chapa.setColorAt(0.0, QColor(0xff, 0xd8, 0x1a));
    chapa.setColorAt(1.0, QColor(0xf0, 0xa8, 0x00));
    p.setPen(QPen(QColor(0x50, 0x30, 0x00), 2));
    p.setBrush(chapa);
    p.drawPath(cuerpo);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xc8, 0x10, 0x2e));
    p.drawRect(QRectF(112, 428, 216, 8));
    p.setBrush(QColor(0xa8, 0xdc, 0xff));
    for (int i = 0; i < 6; ++i) {
        p.drawRoundedRect(QRectF(122 + i * 33, 400, 24, 20), 3, 3);
    }
    p.setBrush(QColor(0xff, 0xff, 0xc0));
    p.drawEllipse(QPointF(325, 432), 4, 4);
    // Wheels.
    p.setBrush(QColor(0x22, 0x22, 0x22));
    for (const double x : {140.0, 172.0, 268.0, 300.0}) {
        p.drawEllipse(QPointF(x, 446), 8, 8);
    }
    p.setBrush(QColor(0xaa, 0xaa, 0xaa));
    for (const double x : {140.0, 172.0, 268.0, 300.0}) {
        p.drawEllipse(QPointF(x, 446), 3, 3);
    }
}

void DibujaFlores(QPainter &p) {
    Sucesion azar(20240611u);
    const QColor colores[] = {QColor(0xff, 0x22, 0x44), QColor(0xff, 0xe0, 0x10),
                              QColor(0xff, 0xff, 0xff), QColor(0xd0, 0x40, 0xff),
                              QColor(0xff, 0x8c, 0x00), QColor(0x30, 0x90, 0xff)};
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 140; ++i) {
        const double x = azar.Siguiente() * 640;
        const double y = 462 + azar.Siguiente() * 16;
        const double y2 = 386 + azar.Siguiente() * 56;
        const QColor &c = colores[static_cast<int>(azar.Siguiente() * 6)];
        // Half in the strip under the rails, half in the meadow left and
        // right of the tram.
        const double fy = i % 2 == 0 ? y : y2;
        if (i % 2 == 1 && x > 100 && x < 340) {
            continue;
        }
        p.setBrush(c);
        p.drawEllipse(QPointF(x, fy), 3, 3);
        p.setBrush(QColor(0xff, 0xc8, 0x00));
        p.drawEllipse(QPointF(x, fy), 1.2, 1.2);
    }
}

} // namespace

QImage DibujaMuestra(int ancho, int alto) {
    QImage imagen(ancho, alto, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.scale(ancho / ANCHO_DISENO, alto / ALTO_DISENO);
    DibujaCielo(p);
    DibujaSol(p);
    DibujaNube(p, 110, 70, 1.2);
    DibujaNube(p, 330, 48, 0.9);
    DibujaNube(p, 300, 128, 0.7);
    DibujaPajaros(p);
    DibujaMontanas(p);
    DibujaColinas(p);
    DibujaLago(p);
    DibujaAbeto(p, 250, 300, 1.0);
    DibujaAbeto(p, 282, 306, 0.8);
    DibujaArbol(p, 220, 360, 1.0, QColor(0x3c, 0xa0, 0x3c), true);
    DibujaCasa(p);
    DibujaValla(p);
    DibujaArbol(p, 580, 352, 1.1, QColor(0x58, 0xb0, 0x2a), false);
    DibujaArbol(p, 330, 372, 0.8, QColor(0x2a, 0x8c, 0x4a), false);
    DibujaArbol(p, 40, 400, 1.2, QColor(0x4a, 0x9a, 0x20), true);
    DibujaTranvia(p);
    DibujaFlores(p);
    p.end();
    return imagen;
}
