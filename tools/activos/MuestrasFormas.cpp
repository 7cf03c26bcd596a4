// The two pictures of shapes: big numbers 1 2 3 among shapes, and a
// picture of geometric figures.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "Azar.h"
#include "Letras.h"
#include "Muestras.h"
#include "Texturas.h"

namespace {

QPainterPath Estrella(QPointF c, double r, int puntas, double giro) {
    QPainterPath e;
    for (int k = 0; k < puntas * 2; ++k) {
        const double a = giro + k * M_PI / puntas;
        const double rr = (k % 2 == 0) ? r : r * 0.45;
        const QPointF q = c + QPointF(std::cos(a), std::sin(a)) * rr;
        k == 0 ? e.moveTo(q) : e.lineTo(q);
    }
    e.closeSubpath();
    return e;
}

QPainterPath Poligono(QPointF c, double r, int lados, double giro) {
    QPainterPath e;
    for (int k = 0; k < lados; ++k) {
        const double a = giro + k * 2 * M_PI / lados;
        const QPointF q = c + QPointF(std::cos(a), std::sin(a)) * r;
        k == 0 ? e.moveTo(q) : e.lineTo(q);
    }
    e.closeSubpath();
    return e;
}

// One of six figures, by number.
QPainterPath Figura(int tipo, QPointF c, double r, double giro) {
    QPainterPath f;
    switch (tipo % 7) {
    case 0:
        f.addEllipse(c, r, r);
        break;
    case 1:
        f = Poligono(c, r, 4, giro);
        break;
    case 2:
        f = Poligono(c, r, 3, giro);
        break;
    case 3:
        f = Estrella(c, r, 5, giro);
        break;
    case 4:
        f = Poligono(c, r, 6, giro);
        break;
    case 5:
        f.addEllipse(c, r, r);
        f.addEllipse(c, r * 0.55, r * 0.55);
        break;
    default:
        f = Estrella(c, r, 8, giro);
        break;
    }
    return f;
}

// A figure with a shadow, a gradient, an outline and a highlight.
void PintaFigura(QPainter &p, const QPainterPath &f, const QColor &c, double r) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawPath(f.translated(r * 0.08 + 2, r * 0.08 + 2));
    const QRectF b = f.boundingRect();
    QLinearGradient g(b.topLeft(), b.bottomRight());
    g.setColorAt(0, c.lighter(150));
    g.setColorAt(0.5, c);
    g.setColorAt(1, c.darker(160));
    p.setBrush(g);
    p.setPen(Qt::NoPen);
    p.drawPath(f);
    // A pattern of dots and rings inside, so that no figure is a flat patch.
    p.setClipPath(f);
    const double paso = std::max(7.0, r / 4);
    for (double y = b.top(); y < b.bottom() + paso; y += paso) {
        for (double x = b.left(); x < b.right() + paso; x += paso) {
            const int k = static_cast<int>((x - b.left()) / paso + (y - b.top()) / paso);
            p.setBrush(k % 2 == 0 ? QColor(255, 255, 255, 90) : QColor(0, 0, 0, 45));
            p.drawEllipse(QPointF(x, y), paso * 0.22, paso * 0.22);
        }
    }
    p.setClipping(false);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(c.darker(250), std::max(1.5, r / 22)));
    p.drawPath(f);
    p.restore();
}

QPainterPath TextoGrande(const QString &t, const QPointF &base, int pixeles) {
    return TextoEnCamino(t, base, pixeles, Letra::SansNegrita);
}

} // namespace

QImage GeneraMuestra123() {
    QImage img(640, 480, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    // A bright background in bands, covered with confetti.
    QLinearGradient fondo(0, 0, 640, 480);
    fondo.setColorAt(0, QColor(255, 245, 200));
    fondo.setColorAt(0.5, QColor(200, 235, 255));
    fondo.setColorAt(1, QColor(255, 215, 235));
    p.fillRect(img.rect(), fondo);
    p.setPen(QPen(QColor(255, 255, 255, 110), 6));
    for (int x = -480; x < 640; x += 18) {
        p.drawLine(QPointF(x, 480), QPointF(x + 480, 0));
    }
    Azar azar(123);
    for (int k = 0; k < 1400; ++k) {
        const QPointF c(azar.Entre(-10, 650), azar.Entre(-10, 490));
        const double r = azar.Entre(3, 11);
        QColor col = ColorVivo(123, k);
        col.setAlpha(azar.Entero(110, 230));
        p.setPen(Qt::NoPen);
        p.setBrush(col);
        p.drawPath(Figura(azar.Entero(0, 6), c, r, azar.Entre(0, 6.3)));
    }
    // Big shapes behind the numbers.
    const struct {
        int tipo;
        QPointF c;
        double r;
        QColor color;
    } grandes[] = {
        {3, {95, 95}, 70, QColor(255, 200, 0)},    {0, {560, 90}, 62, QColor(255, 120, 0)},
        {2, {560, 400}, 75, QColor(150, 60, 200)}, {1, {90, 395}, 62, QColor(0, 180, 200)},
        {4, {320, 430}, 40, QColor(240, 60, 140)}, {6, {320, 50}, 38, QColor(80, 200, 60)}};
    for (const auto &g : grandes) {
        PintaFigura(p, Figura(g.tipo, g.c, g.r, 0.3), g.color, g.r);
    }
    // The numbers, each filled with a pattern of its own.
    const struct {
        QString t;
        double x;
        QColor color;
    } numeros[] = {{"1", 40, QColor(225, 30, 30)},
                   {"2", 230, QColor(30, 170, 50)},
                   {"3", 420, QColor(30, 70, 220)}};
    for (int n = 0; n < 3; ++n) {
        const QPainterPath cifra = TextoGrande(numeros[n].t, {numeros[n].x, 360}, 330);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 90));
        p.drawPath(cifra.translated(9, 9));
        QLinearGradient g(0, 120, 0, 360);
        g.setColorAt(0, numeros[n].color.lighter(160));
        g.setColorAt(1, numeros[n].color.darker(140));
        p.setBrush(g);
        p.drawPath(cifra);
        p.save();
        p.setClipPath(cifra);
        const QRectF b = cifra.boundingRect();
        p.setBrush(QColor(255, 255, 255, 120));
        for (double y = b.top(); y < b.bottom(); y += 22) {
            for (double x = b.left(); x < b.right(); x += 22) {
                const double d = (static_cast<int>((y - b.top()) / 22) % 2) * 11;
                if (n == 0) {
                    p.drawEllipse(QPointF(x + d, y), 5, 5);
                } else if (n == 1) {
                    p.drawRect(QRectF(x, y + (x - b.left()) * 0.3 - 40, 8, 22));
                } else {
                    p.drawPath(Estrella({x + d, y}, 7, 5, -M_PI / 2));
                }
            }
        }
        p.restore();
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(numeros[n].color.darker(300), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(cifra);
        p.setPen(QPen(QColor(255, 255, 255, 200), 2));
        p.drawPath(cifra.translated(-3, -3).intersected(cifra));
        // As many balloons as the number says, under it.
        for (int k = 0; k <= n; ++k) {
            const QPointF c(numeros[n].x + 85 - n * 24 + k * 48, 412);
            p.setPen(QPen(QColor(60, 60, 60), 1.2));
            p.drawLine(c + QPointF(0, 22), c + QPointF(4, 58));
            QRadialGradient rg(c - QPointF(7, 9), 26);
            const QColor col = ColorVivo(77, n * 3 + k);
            rg.setColorAt(0, Qt::white);
            rg.setColorAt(0.3, col);
            rg.setColorAt(1, col.darker(170));
            p.setBrush(rg);
            p.setPen(QPen(col.darker(220), 1.5));
            p.drawEllipse(c, 18, 22);
        }
    }
    p.end();
    AplicaGrano(img, 4, 123);
    return img;
}

QImage GeneraMuestraFormas() {
    QImage img(640, 480, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128)); // no pixel is left to chance
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    // A mosaic of small triangles in soft colours.
    Azar azar(7);
    const double l = 32;
    for (int f = 0; f * l < 480 + l; ++f) {
        for (int k = 0; k * l < 640 + l; ++k) {
            for (int mitad = 0; mitad < 2; ++mitad) {
                QPolygonF t;
                const double x = k * l, y = f * l;
                if (mitad == 0) {
                    t << QPointF(x, y) << QPointF(x + l, y) << QPointF(x, y + l);
                } else {
                    t << QPointF(x + l, y) << QPointF(x + l, y + l) << QPointF(x, y + l);
                }
                QColor c = ColorVivo(8, f * 97 + k * 2 + mitad).lighter(165);
                p.setPen(QPen(QColor(255, 255, 255), 1.5));
                p.setBrush(c);
                p.drawPolygon(t);
            }
        }
    }
    // Figures of every kind, big and small, overlapping.
    for (int k = 0; k < 34; ++k) {
        const double r = k < 12 ? azar.Entre(55, 85) : azar.Entre(22, 45);
        const QPointF c(azar.Entre(20, 620), azar.Entre(20, 460));
        const QPainterPath f = Figura(k, c, r, azar.Entre(0, 6.3));
        PintaFigura(p, f, ColorVivo(9, k), r);
        // Some carry a smaller figure of another colour inside.
        if (k % 3 == 0) {
            PintaFigura(p, Figura(k + 2, c, r * 0.38, azar.Entre(0, 6.3)), ColorVivo(10, k),
                        r * 0.38);
        }
    }
    p.end();
    AplicaGrano(img, 4, 7);
    return img;
}
