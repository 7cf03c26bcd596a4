#include "CaretaArte.h"

#include <QBuffer>
#include <QFile>
#include <QLinearGradient>
#include <QPainter>

#include "IconoJuego.h"
#include "Letras.h"

namespace {

// The last row of a band of a picture in black.
void FilaNegra(QImage &img, int y) {
    for (int x = 0; x < img.width(); ++x) {
        img.setPixel(x, y, 0xFF000000);
    }
}

QImage Negra(int ancho, int alto) {
    QImage img(ancho, alto, QImage::Format_RGB32);
    img.fill(Qt::black);
    return img;
}

// One piece of the logo: a cell with a knob on its right side and a socket
// on its left, in its colour with a light top edge.
QPainterPath PiezaLogo(double x, double y, double lado, bool saliente, bool entrante) {
    QPainterPath c;
    c.addRect(QRectF(x, y, lado, lado));
    const double r = lado * 0.19;
    QPainterPath bola;
    if (saliente) {
        bola.addEllipse(QPointF(x + lado + r * 0.6, y + lado / 2), r, r);
        c = c.united(bola);
    }
    if (entrante) {
        QPainterPath hueco;
        hueco.addEllipse(QPointF(x + r * 0.6, y + lado / 2), r, r);
        c = c.subtracted(hueco);
    }
    return c;
}

// A line of text centred in a band, as large as `pixeles` allows within the
// band's width.
void Linea(QPainter &p, const BandaCareta &b, const QString &texto, double pixeles, Letra letra,
           const QBrush &relleno) {
    QPainterPath t = TextoEnCamino(texto, {0, 0}, pixeles, letra);
    const double margen = b.ancho - 6;
    if (t.boundingRect().width() > margen) {
        t = TextoEnCamino(texto, {0, 0}, pixeles * margen / t.boundingRect().width(), letra);
    }
    const QPointF centro(b.ancho / 2.0, b.arriba + (b.alto - 1) / 2.0);
    p.setPen(Qt::NoPen);
    p.setBrush(relleno);
    p.drawPath(t.translated(centro - t.boundingRect().center()));
}

} // namespace

QString LineaCareta(int banda) {
    return banda == 1 ? QStringLiteral("Puzzles de cualquier imagen")
                      : QStringLiteral("Pulse una tecla para empezar");
}

QImage GeneraLogoCareta() {
    QImage img = Negra(96, 44);
    {
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        const QColor colores[3] = {QColor(0xE0, 0x3C, 0x3C), QColor(0xF2, 0xC1, 0x2E),
                                   QColor(0x2F, 0x6F, 0xE0)};
        // Three cells of 26 fitted together, centred.
        const double lado = 26;
        const double y = 8.5;
        for (int i = 0; i < 3; ++i) {
            const double x = 9 + i * lado;
            const bool saliente = i < 2;
            const QPainterPath c = PiezaLogo(x, y, lado, saliente, i != 0);
            QLinearGradient luz(x, y, x + lado, y + lado);
            luz.setColorAt(0, colores[i].lighter(135));
            luz.setColorAt(1, colores[i].darker(115));
            p.setPen(QPen(QColor(0xF0, 0xF0, 0xF0), 1.2));
            p.setBrush(luz);
            p.drawPath(c);
        }
    }
    FilaNegra(img, img.height() - 1);
    return img;
}

QImage GeneraIconoCareta() {
    QImage img = Negra(32, 32);
    {
        QPainter p(&img);
        p.drawImage(0, 0, GeneraIcono(32));
    }
    FilaNegra(img, img.height() - 1);
    return img;
}

QImage GeneraTextoCareta() {
    QImage img = Negra(241, 87);
    {
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        const BandaCareta &titulo = BandasCareta[0];
        QLinearGradient oro(0, titulo.arriba + 6, 0, titulo.arriba + titulo.alto - 6);
        oro.setColorAt(0, QColor(0xFF, 0xF0, 0xA0));
        oro.setColorAt(1, QColor(0xD8, 0x8A, 0x10));
        Linea(p, titulo, QStringLiteral("Teselari"), 44, Letra::SerifNegrita, oro);
        Linea(p, BandasCareta[1], LineaCareta(1), 15, Letra::SansNegrita, QColor(0xB8, 0xD8, 0xFF));
        Linea(p, BandasCareta[2], LineaCareta(2), 11, Letra::Sans, QColor(0xC0, 0xC0, 0xC0));
    }
    for (const BandaCareta &b : BandasCareta) {
        FilaNegra(img, b.arriba + b.alto - 1);
    }
    return img;
}

bool EscribeCaretaEIconos(const QDir &raiz, std::ostream &informe) {
    const auto escribe = [&informe](const QString &ruta, const QByteArray &datos) {
        QFile f(ruta);
        const bool bien = f.open(QIODevice::WriteOnly) && f.write(datos) == datos.size();
        informe << (bien ? "written " : "FAILED ") << ruta.toStdString() << '\n';
        return bien;
    };
    const auto png = [&escribe](const QImage &img, const QString &ruta) {
        QByteArray datos;
        QBuffer b(&datos);
        return b.open(QIODevice::WriteOnly) && img.save(&b, "PNG") && escribe(ruta, datos);
    };
    bool bien = raiz.mkpath("careta") && raiz.mkpath("iconos");
    bien = png(GeneraLogoCareta(), raiz.filePath("careta/logo.png")) && bien;
    bien = png(GeneraIconoCareta(), raiz.filePath("careta/icono.png")) && bien;
    bien = png(GeneraTextoCareta(), raiz.filePath("careta/texto.png")) && bien;
    for (int lado : LadosIcono()) {
        bien = png(GeneraIcono(lado), raiz.filePath(QString("iconos/teselari-%1.png").arg(lado))) &&
               bien;
    }
    return escribe(raiz.filePath("iconos/teselari.svg"), SvgIcono().toUtf8()) && bien;
}
