#include "Varios.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "Iconos.h"

namespace {

// The colours of the shape icons: the box's yellow, a field of picture
// blue, a red figure; black outlines.
const QColor Amarillo(255, 255, 0);
const QColor Campo(150, 200, 250);
const QColor Figura(210, 30, 30);

// The triangle's face is never the panel grey: the stepper tells a press on
// the arrow from one beside it by that grey.
const QRgb CaraFlecha = 0xFF4060C8;
const QRgb CaraFlechaPulsada = 0xFF304898;
const QRgb LuzFlecha = 0xFFA0BEFF;
const QRgb SombraFlecha = 0xFF102060;

void Contorno(QPainter &p) {
    p.setPen(QPen(Qt::black, 1.0));
}

// The field of a cell: the icon's rectangle less one pixel all round.
QRectF RectCampo(const QRect &c) {
    return QRectF(c.left() + 1.5, c.top() + 1.5, c.width() - 3, c.height() - 3);
}

void DibujaCampo(QPainter &p, const QRect &c) {
    Contorno(p);
    p.setBrush(Campo);
    p.drawRect(RectCampo(c));
}

// A piece with a knob at the top and the right and a socket at the left
// and the bottom.
QPainterPath Pieza(const QRect &c) {
    const QPointF o(c.left() + 6.5, c.top() + 5.5);
    const double w = 13, h = 11, r = 2.6;
    QPainterPath cuerpo;
    cuerpo.addRect(QRectF(o, QSizeF(w, h)));
    QPainterPath salientes, entrantes;
    salientes.addEllipse(QPointF(o.x() + w / 2, o.y() - r + 0.8), r, r);
    salientes.addEllipse(QPointF(o.x() + w + r - 0.8, o.y() + h / 2), r, r);
    entrantes.addEllipse(QPointF(o.x() + r - 0.8, o.y() + h / 2), r, r);
    entrantes.addEllipse(QPointF(o.x() + w / 2, o.y() + h - r + 0.8), r, r);
    return cuerpo.united(salientes).subtracted(entrantes);
}

QPainterPath Estrella(const QPointF &centro, double exterior, double interior) {
    QPolygonF puntas;
    for (int k = 0; k < 10; ++k) {
        const double a = -M_PI / 2 + k * M_PI / 5;
        const double r = k % 2 == 0 ? exterior : interior;
        puntas << centro + QPointF(r * std::cos(a), r * std::sin(a));
    }
    QPainterPath camino;
    camino.addPolygon(puntas);
    camino.closeSubpath();
    return camino;
}

void DibujaForma(QPainter &p, int i) {
    const QRect c = CeldaForma(i);
    p.fillRect(c, Amarillo);
    if (i == 1) {
        Contorno(p);
        p.setBrush(Campo);
        p.drawPath(Pieza(c));
        return;
    }
    DibujaCampo(p, c);
    const QPointF centro = RectCampo(c).center();
    Contorno(p);
    p.setBrush(Figura);
    switch (i) {
    case 2:
        p.drawEllipse(centro, 6.5, 6.5);
        break;
    case 3:
        p.drawRect(QRectF(centro - QPointF(6, 4.5), QSizeF(12, 9)));
        break;
    case 4:
        p.drawEllipse(centro, 9, 5.5);
        break;
    case 5:
        p.drawPath(Estrella(centro, 8, 3.4));
        break;
    default:
        break;
    }
}

// An arrow button: the face, a light edge towards the top left and a dark
// one towards the bottom right; pressed, the face darker and the edges
// swapped.
void DibujaFlecha(QImage &tira, int x0, bool sube, bool pulsada) {
    const QRgb luz = pulsada ? SombraFlecha : LuzFlecha;
    const QRgb sombra = pulsada ? LuzFlecha : SombraFlecha;
    for (int y = 0; y < AltoFlecha; ++y) {
        for (int x = 0; x < AnchoFlecha; ++x) {
            if (!DentroFlecha(sube, x, y)) {
                continue;
            }
            const bool izquierda = !DentroFlecha(sube, x - 1, y);
            const bool derecha = !DentroFlecha(sube, x + 1, y);
            const bool base = sube ? y == AltoFlecha - 1 : y == 0;
            QRgb color = pulsada ? CaraFlechaPulsada : CaraFlecha;
            if (base) {
                color = sube ? sombra : luz;
            } else if (izquierda) {
                color = luz;
            } else if (derecha) {
                color = sombra;
            }
            tira.setPixel(x0 + x, 1 + y, color);
        }
    }
}

// The selector key: a small push button with a round mark; pressed, sunken
// with the mark one pixel further.
void DibujaTecla(QImage &tira, int x0, bool pulsada) {
    QPainter p(&tira);
    const QRect r(x0, 1, AnchoTecla, AltoTecla);
    p.fillRect(r, QColor::fromRgb(ColorPanel));
    const QColor arribaFuera = pulsada ? Qt::black : Qt::white;
    const QColor abajoFuera = pulsada ? Qt::white : Qt::black;
    const QColor abajoDentro = pulsada ? QColor(0xE0, 0xE0, 0xE0) : QColor(0x80, 0x80, 0x80);
    const int l = r.left(), t = r.top(), rr = r.right(), b = r.bottom();
    p.setPen(arribaFuera);
    p.drawLine(l, t, rr - 1, t);
    p.drawLine(l, t, l, b - 1);
    p.setPen(abajoFuera);
    p.drawLine(l, b, rr, b);
    p.drawLine(rr, t, rr, b);
    p.setPen(abajoDentro);
    p.drawLine(l + 1, b - 1, rr - 1, b - 1);
    p.drawLine(rr - 1, t + 1, rr - 1, b - 1);
    if (pulsada) {
        p.setPen(QColor(0x80, 0x80, 0x80));
        p.drawLine(l + 1, t + 1, rr - 2, t + 1);
        p.drawLine(l + 1, t + 1, l + 1, b - 2);
    }
    const int d = pulsada ? 1 : 0;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::black, 1.0));
    p.setBrush(QColor(0, 150, 0));
    p.drawEllipse(QPointF(l + 14.5 + d, t + 9.5 + d), 4, 4);
}

} // namespace

bool DentroFlecha(bool sube, int x, int y) {
    if (x < 0 || x >= AnchoFlecha || y < 0 || y >= AltoFlecha) {
        return false;
    }
    // From two pixels at the tip to the whole width at the base.
    const int fila = sube ? y : AltoFlecha - 1 - y;
    const double mitad = 0.5 + fila * 11.0 / (AltoFlecha - 1);
    return std::abs(x - 11.5) <= mitad;
}

QImage GeneraTiraVarios() {
    QImage tira(AnchoVarios, AltoVarios, QImage::Format_RGB32);
    tira.fill(ColorPanel);
    {
        QPainter p(&tira);
        p.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < 6; ++i) {
            p.save();
            p.setClipRect(CeldaForma(i));
            DibujaForma(p, i);
            p.restore();
        }
    }
    DibujaFlecha(tira, XSubeArriba, true, false);
    DibujaFlecha(tira, XBajaArriba, false, false);
    DibujaFlecha(tira, XSubePulsada, true, true);
    DibujaFlecha(tira, XBajaPulsada, false, true);
    DibujaTecla(tira, XTeclaArriba, false);
    DibujaTecla(tira, XTeclaPulsada, true);
    return tira;
}
