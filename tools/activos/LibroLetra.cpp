#include <QPainterPath>
#include <QRawFont>
#include <QTransform>

#include "Azar.h"
#include "Libro.h"

namespace {

// The face of a hand at a size, from the font file itself.
const QRawFont &Fuente(double pixeles, Mano mano) {
    // Never destroyed: a face outliving the application would be released
    // after Qt's font cache at exit.
    static QRawFont &fuente = *new QRawFont;
    static double tamano = 0;
    static Mano actual = Mano::Cancilleresca;
    if (tamano != pixeles || actual != mano) {
        const QString carpeta = QStringLiteral("/usr/share/fonts/opentype/urw-base35/");
        fuente = QRawFont(carpeta + (mano == Mano::Cancilleresca ? "Z003-MediumItalic.otf"
                                                                 : "P052-BoldItalic.otf"),
                          pixeles, QFont::PreferNoHinting);
        tamano = pixeles;
        actual = mano;
    }
    return fuente;
}

} // namespace

double AnchoAMano(const QString &texto, double pixeles, Mano mano) {
    const QRawFont &f = Fuente(pixeles, mano);
    if (!f.isValid()) {
        return 0;
    }
    double ancho = 0;
    for (const QPointF &a : f.advancesForGlyphIndexes(f.glyphIndexesForString(texto))) {
        ancho += a.x();
    }
    return ancho;
}

double AltoMayusculas(double pixeles, Mano mano) {
    const QRawFont &f = Fuente(pixeles, mano);
    return f.isValid() ? f.capHeight() : 0;
}

double EscribeAMano(QPainter &p, const QString &texto, QPointF base, double pixeles,
                    const QColor &tinta, uint32_t semilla, Mano mano) {
    const QRawFont &f = Fuente(pixeles, mano);
    if (!f.isValid()) {
        return 0;
    }
    Azar azar(semilla);
    const QList<quint32> glifos = f.glyphIndexesForString(texto);
    const QList<QPointF> avances = f.advancesForGlyphIndexes(glifos);
    QPainterPath escrito;
    QPointF pluma = base;
    for (qsizetype i = 0; i < glifos.size(); ++i) {
        // A hand keeps no letter quite upright nor quite on the line.
        QTransform t;
        t.translate(pluma.x() + avances[i].x() / 2, pluma.y() + azar.Entre(-0.35, 0.35));
        t.rotate(azar.Entre(-2.5, 2.5));
        t.translate(-avances[i].x() / 2, 0);
        escrito.addPath(t.map(f.pathForGlyph(glifos[i])));
        pluma += avances[i];
    }
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(tinta);
    p.drawPath(escrito);
    p.restore();
    return pluma.x() - base.x();
}
