#include "Letras.h"

#include <QRawFont>

namespace {

QString FicheroDe(Letra letra) {
    const QString carpeta = "/usr/share/fonts/truetype/dejavu/";
    switch (letra) {
    case Letra::SansNegrita:
        return carpeta + "DejaVuSans-Bold.ttf";
    case Letra::SerifNegrita:
        return carpeta + "DejaVuSerif-Bold.ttf";
    default:
        return carpeta + "DejaVuSans.ttf";
    }
}

} // namespace

QPainterPath TextoEnCamino(const QString &texto, QPointF base, double pixeles, Letra letra) {
    QPainterPath camino;
    const QRawFont fuente(FicheroDe(letra), pixeles, QFont::PreferNoHinting);
    if (!fuente.isValid()) {
        return camino;
    }
    const QList<quint32> glifos = fuente.glyphIndexesForString(texto);
    const QList<QPointF> avances = fuente.advancesForGlyphIndexes(glifos);
    QPointF pluma = base;
    for (qsizetype i = 0; i < glifos.size(); ++i) {
        camino.addPath(fuente.pathForGlyph(glifos[i]).translated(pluma));
        pluma += avances[i];
    }
    return camino;
}

void PintaTextoCentrado(QPainter &p, const QRectF &caja, const QString &texto, double pixeles,
                        Letra letra, const QColor &color) {
    const QPainterPath t = TextoEnCamino(texto, {0, 0}, pixeles, letra);
    const QRectF b = t.boundingRect();
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPath(t.translated(caja.center() - b.center()));
    p.restore();
}
