// Small drawing helpers shared by the button images.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <vector>

// A transparent 48 x 48 layer.
inline QImage CapaVacia() {
    QImage c(48, 48, QImage::Format_ARGB32_Premultiplied);
    c.fill(Qt::transparent);
    return c;
}

// A pixel-exact square piece: black outline, coloured face, a light top-left
// edge and a darker bottom-right edge.
inline void DibujaPiezaCuadrada(QPainter &p, const QRect &r, const QColor &cara) {
    p.fillRect(r, Qt::black);
    const QRect in = r.adjusted(1, 1, -1, -1);
    p.fillRect(in, cara);
    p.fillRect(QRect(in.left(), in.top(), in.width(), 1), cara.lighter(140));
    p.fillRect(QRect(in.left(), in.top(), 1, in.height()), cara.lighter(140));
    p.fillRect(QRect(in.left(), in.bottom(), in.width(), 1), cara.darker(130));
    p.fillRect(QRect(in.right(), in.top(), 1, in.height()), cara.darker(130));
}

// A thick arrow from `desde` to `hasta`, with a head of the given size.
inline QPainterPath FlechaGruesa(QPointF desde, QPointF hasta, double grosor, double cabeza) {
    const QPointF d = hasta - desde;
    const double l = std::hypot(d.x(), d.y());
    const QPointF u = d / l, n(-u.y(), u.x());
    const QPointF base = hasta - u * cabeza;
    QPolygonF f;
    f << desde + n * grosor / 2 << base + n * grosor / 2 << base + n * cabeza * 0.75 << hasta
      << base - n * cabeza * 0.75 << base - n * grosor / 2 << desde - n * grosor / 2;
    QPainterPath camino;
    camino.addPolygon(f);
    camino.closeSubpath();
    return camino;
}

inline void RellenaConBorde(QPainter &p, const QPainterPath &c, const QBrush &relleno,
                            const QColor &borde, double ancho = 1.0) {
    p.setPen(QPen(borde, ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(relleno);
    p.drawPath(c);
}

// Layers of the images, by command.
std::vector<QImage> CapasAyuda();
std::vector<QImage> CapasPersonaliza();
std::vector<QImage> CapasModelo();
std::vector<QImage> CapasBaraja();
std::vector<QImage> CapasOcultas();
std::vector<QImage> CapasColocadas();
std::vector<QImage> CapasOrdena();
std::vector<QImage> CapasTutor();
std::vector<QImage> CapasResuelve();
std::vector<QImage> CapasHistorico();
std::vector<QImage> CapasSalir();
std::vector<QImage> CapasRechazar();
std::vector<QImage> CapasAceptar();
