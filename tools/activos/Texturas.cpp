#include "Texturas.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "Azar.h"

namespace {

int Limita(int v) {
    return std::clamp(v, 0, 255);
}

QColor Desvia(const QColor &c, int d) {
    return QColor(Limita(c.red() + d), Limita(c.green() + d), Limita(c.blue() + d));
}

} // namespace

QImage TexturaRuido(int ancho, int alto, const QColor &base, int amplitud, double escala,
                    uint32_t semilla) {
    QImage t(ancho, alto, QImage::Format_RGB32);
    for (int y = 0; y < alto; ++y) {
        QRgb *fila = reinterpret_cast<QRgb *>(t.scanLine(y));
        for (int x = 0; x < ancho; ++x) {
            const double n = RuidoFractal(x, y, escala, semilla) - 0.5;
            const double g = ValorReticula(x, y, semilla + 7) - 0.5;
            const int d = static_cast<int>(std::lround(amplitud * (1.6 * n + 0.5 * g)));
            fila[x] =
                qRgb(Limita(base.red() + d), Limita(base.green() + d), Limita(base.blue() + d));
        }
    }
    return t;
}

QBrush BrochaRuido(const QColor &base, int amplitud, double escala, uint32_t semilla) {
    return QBrush(TexturaRuido(256, 256, base, amplitud, escala, semilla));
}

void RellenaRuido(QPainter &p, const QPainterPath &zona, const QColor &base, int amplitud,
                  double escala, uint32_t semilla) {
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(BrochaRuido(base, amplitud, escala, semilla));
    p.drawPath(zona);
    p.restore();
}

void PintaCielo(QImage &img, const QRect &zona, const QColor &arriba, const QColor &abajo,
                double nubes, uint32_t semilla) {
    const QRect z = zona.intersected(img.rect());
    for (int y = z.top(); y <= z.bottom(); ++y) {
        const double t = static_cast<double>(y - zona.top()) / std::max(1, zona.height() - 1);
        QRgb *fila = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = z.left(); x <= z.right(); ++x) {
            double r = arriba.red() + (abajo.red() - arriba.red()) * t;
            double g = arriba.green() + (abajo.green() - arriba.green()) * t;
            double b = arriba.blue() + (abajo.blue() - arriba.blue()) * t;
            // Clouds: flattened fractal noise above a threshold.
            const double n = RuidoFractal(x * 0.5, y * 1.4, 90, semilla);
            const double c = std::clamp((n - (0.62 - nubes * 0.2)) * 4.0, 0.0, 1.0);
            const double sombra = RuidoFractal(x, y, 25, semilla + 3) * 40;
            // The clear sky is never one colour: a slow haze runs over it.
            const double velo = (RuidoFractal(x, y, 45, semilla + 5) - 0.5) * 34 +
                                (RuidoFractal(x, y, 9, semilla + 9) - 0.5) * 22;
            r += velo;
            g += velo;
            b += velo * 0.6;
            r += (250 - sombra - r) * c;
            g += (250 - sombra - g) * c;
            b += (255 - sombra * 0.6 - b) * c;
            fila[x] = qRgb(Limita(int(r)), Limita(int(g)), Limita(int(b)));
        }
    }
}

void PintaLadrillos(QPainter &p, const QRectF &zona, const QColor &base, double ancho, double alto,
                    uint32_t semilla, const QColor &mortero) {
    Azar azar(semilla);
    p.save();
    p.setClipRect(zona, Qt::IntersectClip);
    p.fillRect(zona, BrochaRuido(mortero, 20, 6, semilla + 1));
    int fila = 0;
    for (double y = zona.top(); y < zona.bottom(); y += alto, ++fila) {
        const double desfase = (fila % 2) * ancho / 2;
        for (double x = zona.left() - desfase; x < zona.right(); x += ancho) {
            const int d = azar.Entero(-22, 22);
            const QColor c(Limita(base.red() + d + azar.Entero(-8, 8)), Limita(base.green() + d),
                           Limita(base.blue() + d + azar.Entero(-6, 6)));
            p.setPen(Qt::NoPen);
            p.setBrush(BrochaRuido(c, 18, 5, semilla + fila));
            p.drawRect(QRectF(x + 1, y + 1, ancho - 2, alto - 2));
            p.setBrush(QColor(0, 0, 0, 40));
            p.drawRect(QRectF(x + 1, y + alto - 2.5, ancho - 2, 1.5));
        }
    }
    p.restore();
}

void PintaAdoquines(QPainter &p, const QRectF &zona, double lado, uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setClipRect(zona, Qt::IntersectClip);
    p.fillRect(zona, BrochaRuido(QColor(90, 85, 78), 25, 4, semilla));
    p.setRenderHint(QPainter::Antialiasing);
    int fila = 0;
    for (double y = zona.top(); y < zona.bottom(); y += lado * 0.9, ++fila) {
        for (double x = zona.left() - (fila % 2) * lado / 2; x < zona.right(); x += lado) {
            const int g = azar.Entero(120, 185);
            const QColor c(g + azar.Entero(-10, 15), g - 5, g - azar.Entero(5, 25));
            QRadialGradient rg(x + lado * 0.4, y + lado * 0.3, lado * 0.7);
            rg.setColorAt(0, c.lighter(120));
            rg.setColorAt(1, c.darker(125));
            p.setPen(QPen(QColor(60, 55, 50), 1));
            p.setBrush(rg);
            p.drawRoundedRect(QRectF(x + azar.Entre(0.5, 2), y + azar.Entre(0.5, 2),
                                     lado - azar.Entre(2, 4), lado * 0.9 - azar.Entre(2, 3.5)),
                              lado * 0.3, lado * 0.3);
        }
    }
    p.restore();
}

void PintaFollaje(QPainter &p, const QPointF &centro, double rx, double ry, const QColor &base,
                  int hojas, uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    for (int k = 0; k < hojas; ++k) {
        const double a = azar.Entre(0, 2 * M_PI), r = std::sqrt(azar.Real());
        const double x = centro.x() + std::cos(a) * rx * r;
        const double y = centro.y() + std::sin(a) * ry * r;
        // Lighter towards the upper left, darker inside.
        const double luz = -(std::cos(a) + std::sin(a)) * r * 25 + (1 - r) * -20;
        const QColor c = Desvia(base, static_cast<int>(luz) + azar.Entero(-18, 18));
        p.setBrush(QColor(Limita(c.red() + azar.Entero(-10, 10)), c.green(), c.blue()));
        const double s = azar.Entre(2, 5) * std::max(1.0, rx / 40);
        p.drawEllipse(QPointF(x, y), s, s * azar.Entre(0.5, 1));
    }
    p.restore();
}

void PintaHierba(QPainter &p, const QRectF &zona, uint32_t semilla, bool flores) {
    Azar azar(semilla);
    p.save();
    p.setClipRect(zona, Qt::IntersectClip);
    p.fillRect(zona, BrochaRuido(QColor(70, 130, 45), 30, 12, semilla));
    p.setRenderHint(QPainter::Antialiasing);
    const int n = static_cast<int>(zona.width() * zona.height() / 12);
    for (int k = 0; k < n; ++k) {
        const double x = azar.Entre(zona.left(), zona.right());
        const double y = azar.Entre(zona.top(), zona.bottom() + 6);
        const double l = azar.Entre(3, 8);
        p.setPen(QPen(QColor(azar.Entero(40, 110), azar.Entero(110, 190), azar.Entero(20, 70)), 1));
        p.drawLine(QPointF(x, y), QPointF(x + azar.Entre(-2.5, 2.5), y - l));
    }
    if (flores) {
        p.setPen(Qt::NoPen);
        for (int k = 0; k < n / 40; ++k) {
            p.setBrush(ColorVivo(semilla, k));
            p.drawEllipse(QPointF(azar.Entre(zona.left(), zona.right()),
                                  azar.Entre(zona.top(), zona.bottom())),
                          1.6, 1.6);
        }
    }
    p.restore();
}

void PintaTejas(QPainter &p, const QRectF &zona, const QColor &base, double lado,
                uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setClipRect(zona, Qt::IntersectClip);
    p.fillRect(zona, base.darker(160));
    p.setRenderHint(QPainter::Antialiasing);
    int fila = 0;
    for (double y = zona.top() - lado; y < zona.bottom(); y += lado * 0.7, ++fila) {
        for (double x = zona.left() - (fila % 2) * lado / 2; x < zona.right(); x += lado) {
            const QColor c = Desvia(base, azar.Entero(-25, 20));
            QLinearGradient g(x, 0, x + lado, 0);
            g.setColorAt(0, c.darker(130));
            g.setColorAt(0.4, c.lighter(115));
            g.setColorAt(1, c.darker(140));
            p.setPen(QPen(c.darker(180), 0.8));
            p.setBrush(g);
            QPainterPath t;
            t.moveTo(x, y);
            t.lineTo(x + lado, y);
            t.lineTo(x + lado, y + lado * 0.7);
            t.arcTo(QRectF(x, y + lado * 0.45, lado, lado * 0.55), 0, -180);
            t.closeSubpath();
            p.drawPath(t);
        }
    }
    p.restore();
}

void PintaVentana(QPainter &p, const QRectF &r, const QColor &marco, const QColor &postigos,
                  uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    if (postigos.alpha() > 0) {
        for (const double x : {r.left() - r.width() * 0.5 - 2, r.right() + 2}) {
            const QRectF h(x, r.top(), r.width() * 0.5, r.height());
            p.setPen(QPen(postigos.darker(160), 1));
            p.setBrush(postigos);
            p.drawRect(h);
            for (double y = h.top() + 3; y < h.bottom() - 2; y += 4) {
                p.drawLine(QPointF(h.left() + 2, y), QPointF(h.right() - 2, y));
            }
        }
    }
    p.setPen(Qt::NoPen);
    p.setBrush(marco);
    p.drawRect(r.adjusted(-3, -3, 3, 3));
    QLinearGradient vidrio(r.topLeft(), r.bottomRight());
    vidrio.setColorAt(0, QColor(150, 190, 220));
    vidrio.setColorAt(0.45, QColor(60, 90, 130));
    vidrio.setColorAt(0.5, QColor(170, 205, 230));
    vidrio.setColorAt(1, QColor(30, 50, 80));
    p.setBrush(vidrio);
    p.drawRect(r);
    // A curtain on one side, in a colour of its own.
    p.setBrush(ColorVivo(semilla, 3).lighter(130));
    QPainterPath cortina;
    const double lado = azar.Real() < 0.5 ? r.left() : r.right();
    const double signo = lado == r.left() ? 1 : -1;
    cortina.moveTo(lado, r.top());
    cortina.lineTo(lado + signo * r.width() * 0.35, r.top());
    cortina.quadTo(lado + signo * r.width() * 0.1, r.center().y(), lado + signo * r.width() * 0.2,
                   r.bottom());
    cortina.lineTo(lado, r.bottom());
    cortina.closeSubpath();
    p.drawPath(cortina);
    p.setPen(QPen(marco, std::max(1.5, r.width() / 14)));
    p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
    p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    p.setPen(QPen(marco.darker(150), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(-3, -3, 3, 3));
    p.restore();
}

void PintaPersona(QPainter &p, const QPointF &pies, double alto, uint32_t semilla) {
    Azar azar(semilla);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    const double a = alto;
    const QColor piel[] = {QColor(240, 200, 160), QColor(200, 150, 110), QColor(130, 90, 60)};
    const QColor ropa = ColorVivo(semilla, 1);
    const QColor pantalon = Desvia(QColor(50, 60, 90), azar.Entero(-30, 60));
    p.setBrush(pantalon);
    p.drawRect(QRectF(pies.x() - a * 0.09, pies.y() - a * 0.45, a * 0.07, a * 0.45));
    p.drawRect(QRectF(pies.x() + a * 0.02, pies.y() - a * 0.45, a * 0.07, a * 0.45));
    p.setBrush(ropa);
    p.drawRoundedRect(QRectF(pies.x() - a * 0.13, pies.y() - a * 0.82, a * 0.26, a * 0.42),
                      a * 0.05, a * 0.05);
    p.setBrush(piel[azar.Entero(0, 2)]);
    p.drawEllipse(QPointF(pies.x(), pies.y() - a * 0.9), a * 0.08, a * 0.1);
    p.setBrush(QColor(azar.Entero(20, 120), azar.Entero(10, 70), 10));
    p.drawChord(QRectF(pies.x() - a * 0.085, pies.y() - a, a * 0.17, a * 0.14), 0, 180 * 16);
    p.restore();
}

void AplicaGrano(QImage &img, int fuerza, uint32_t semilla) {
    for (int y = 0; y < img.height(); ++y) {
        QRgb *fila = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < img.width(); ++x) {
            const double lento = (RuidoFractal(x, y, 160, semilla) - 0.5) * fuerza * 2;
            const int d = static_cast<int>(
                std::lround(lento + (ValorReticula(x, y, semilla + 1) - 0.5) * fuerza * 2));
            const QRgb c = fila[x];
            fila[x] = qRgb(Limita(qRed(c) + d), Limita(qGreen(c) + d), Limita(qBlue(c) + d));
        }
    }
}

QColor ColorVivo(uint32_t semilla, int indice) {
    const double h = ValorReticula(indice, 17, semilla);
    const double s = 0.65 + 0.35 * ValorReticula(indice, 29, semilla);
    const double v = 0.7 + 0.3 * ValorReticula(indice, 31, semilla);
    return QColor::fromHsvF(static_cast<float>(h), static_cast<float>(s), static_cast<float>(v));
}
