#include "IconoJuego.h"

#include <QPainter>

namespace {

const QColor Linea(0x1A, 0x1A, 0x1A);
constexpr double AnchoLinea = 1.6;

// A piece's knob: a circle just beyond the side, joined to it by a neck.
QPainterPath Saliente(QPointF centro) {
    QPainterPath c;
    c.addEllipse(centro, 5.0, 5.0);
    return c;
}

struct Pieza {
    QRectF celda;
    std::vector<QPointF> salientes;
    std::vector<QPointF> entrantes;
    QColor color;
};

// The 2 x 2 puzzle on cells of 26 from (4, 4): the top left piece sends a
// knob right and down; the top right and bottom left pieces each send one
// into the bottom right piece.
std::vector<Pieza> Piezas() {
    const double a = 4, m = 30, b = 56;
    const QPointF derechaTL(m + 3, 17), abajoTL(17, m + 3);
    const QPointF abajoTR(43, m + 3), derechaBL(m + 3, 43);
    return {
        {QRectF(a, a, m - a, m - a), {derechaTL, abajoTL}, {}, QColor(0xE0, 0x3C, 0x3C)},
        {QRectF(m, a, b - m, m - a), {abajoTR}, {derechaTL}, QColor(0xF2, 0xC1, 0x2E)},
        {QRectF(a, m, m - a, b - m), {derechaBL}, {abajoTL}, QColor(0x2F, 0x6F, 0xE0)},
        {QRectF(m, m, b - m, b - m), {}, {abajoTR, derechaBL}, QColor(0x3C, 0xB0, 0x4E)},
    };
}

QPainterPath Camino(const Pieza &p) {
    QPainterPath c;
    c.addRect(p.celda);
    for (const QPointF &s : p.salientes) {
        c = c.united(Saliente(s));
    }
    for (const QPointF &e : p.entrantes) {
        c = c.subtracted(Saliente(e));
    }
    return c.simplified();
}

QString Numero(double v) {
    QString s = QString::number(v, 'f', 3);
    while (s.endsWith('0')) {
        s.chop(1);
    }
    if (s.endsWith('.')) {
        s.chop(1);
    }
    return s == "-0" ? "0" : s;
}

QString DatosSvg(const QPainterPath &c) {
    QString d;
    for (int i = 0; i < c.elementCount(); ++i) {
        const QPainterPath::Element e = c.elementAt(i);
        const QString punto = Numero(e.x) + ' ' + Numero(e.y);
        if (e.isMoveTo()) {
            d += (d.isEmpty() ? "M" : " Z M") + punto;
        } else if (e.isLineTo()) {
            d += " L" + punto;
        } else if (e.type == QPainterPath::CurveToElement) {
            d += " C" + punto;
        } else {
            d += ' ' + punto;
        }
    }
    return d + " Z";
}

} // namespace

std::vector<TrazoIcono> TrazosIcono() {
    std::vector<TrazoIcono> trazos;
    const std::vector<Pieza> piezas = Piezas();
    // The lifted piece stands 5 up the grid's diagonal from its place; its
    // shadow falls in the place it left.
    const QPainterPath levantada = Camino(piezas[3]);
    trazos.push_back({levantada.translated(2, 2), QColor(0, 0, 0, 90), false});
    for (size_t i = 0; i < piezas.size(); ++i) {
        const QPainterPath c = Camino(piezas[i]);
        trazos.push_back({i == 3 ? c.translated(4, 4) : c, piezas[i].color, true});
    }
    return trazos;
}

QImage GeneraIcono(int lado) {
    QImage img(lado, lado, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lado / LadoRejillaIcono, lado / LadoRejillaIcono);
    for (const TrazoIcono &t : TrazosIcono()) {
        p.setPen(t.contorno ? QPen(Linea, AnchoLinea, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                            : QPen(Qt::NoPen));
        p.setBrush(t.relleno);
        p.drawPath(t.camino);
    }
    p.end();
    return img.convertToFormat(QImage::Format_ARGB32);
}

const std::vector<int> &LadosIcono() {
    static const std::vector<int> lados{32, 48, 64, 128, 256};
    return lados;
}

QString SvgIcono() {
    QString svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                  "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"64\" height=\"64\" "
                  "viewBox=\"0 0 64 64\">\n";
    for (const TrazoIcono &t : TrazosIcono()) {
        svg += "  <path fill=\"" + t.relleno.name(QColor::HexRgb) + "\"";
        if (t.relleno.alpha() < 255) {
            svg += " fill-opacity=\"" + Numero(t.relleno.alphaF()) + "\"";
        }
        if (t.contorno) {
            svg += " stroke=\"" + Linea.name(QColor::HexRgb) + "\" stroke-width=\"" +
                   Numero(AnchoLinea) + "\" stroke-linejoin=\"round\"";
        }
        svg += " d=\"" + DatosSvg(t.camino) + "\"/>\n";
    }
    return svg + "</svg>\n";
}
