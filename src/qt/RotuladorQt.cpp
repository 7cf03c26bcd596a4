#include "qt/RotuladorQt.h"

#include "qt/ImagenQt.h"
#include <QColor>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <cmath>

namespace {

// Where Debian's fonts-liberation puts the two weights the game uses.
constexpr const char *FICHEROS_LETRA[] = {
    "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf",
    "/usr/share/fonts/truetype/liberation/LiberationSans-Bold.ttf"};

QString RegistraFamilia() {
    const QString familia = QStringLiteral("Liberation Sans");
    if (!QFontDatabase::hasFamily(familia)) {
        for (const char *fichero : FICHEROS_LETRA) {
            QFontDatabase::addApplicationFont(QString::fromUtf8(fichero));
        }
    }
    return familia;
}

} // namespace

const QString &FamiliaDelJuego() {
    static const QString familia = RegistraFamilia();
    return familia;
}

int PixelesDePuntos(double puntos) {
    if (puntos > 9.5 && puntos < 10.0) {
        return 12; // the messages' 9.75 pt
    }
    return std::max(1, static_cast<int>(std::lround(puntos * 96.0 / 72.0)));
}

QFont FuenteQt(const Fuente &f) {
    QFont fuente(FamiliaDelJuego());
    fuente.setStyleHint(QFont::SansSerif);
    fuente.setPixelSize(PixelesDePuntos(f.Tamano));
    fuente.setBold(f.Negrita);
    fuente.setStyleStrategy(QFont::NoAntialias);
    return fuente;
}

namespace {

// Text on a surface is not smoothed; fully hinted, its glyphs keep even
// gaps at small sizes.
QFont FuenteDeSuperficie(const Fuente &f) {
    QFont fuente = FuenteQt(f);
    fuente.setHintingPreference(QFont::PreferFullHinting);
    return fuente;
}

} // namespace

double RotuladorQt::Ancho(const Fuente &f, const std::string &texto) {
    return QFontMetricsF(FuenteDeSuperficie(f)).horizontalAdvance(QString::fromStdString(texto));
}

double RotuladorQt::Alto(const Fuente &f, const std::string &) {
    return std::ceil(QFontMetricsF(FuenteDeSuperficie(f)).height());
}

void RotuladorQt::Dibuja(Superficie &s, const Fuente &f, double x, double y, Color c,
                         const std::string &texto) {
    if (s.Ancho() <= 0 || s.Alto() <= 0) {
        return;
    }
    QImage lienzo(reinterpret_cast<uchar *>(s.Fila(0)), s.Ancho(), s.Alto(),
                  static_cast<qsizetype>(s.Ancho()) * 4, QImage::Format_RGB32);
    QPainter p(&lienzo);
    if (const auto &recorte = s.Recorte()) {
        QRegion zona;
        for (const Rectangulo &r : recorte->Rectangulos()) {
            zona += QRect(r.Izquierda, r.Arriba, r.Ancho(), r.Alto());
        }
        p.setClipRegion(zona);
    }
    const QFont fuente = FuenteDeSuperficie(f);
    p.setFont(fuente);
    p.setPen(ColorQt(c));
    p.drawText(QPointF(x, y + QFontMetricsF(fuente).ascent()), QString::fromStdString(texto));
}
