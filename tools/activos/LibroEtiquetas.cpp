// The labels of a record, over either page of a spread.
#include "Libro.h"

const FilaLibro FilasRegistro[15] = {{17, "Fecha"},
                                     {37, "Hora"},
                                     {57, "Archivo imagen"},
                                     {77, "Tamaño imagen"},
                                     {97, "Piezas por lado"},
                                     {118, "Clase de piezas"},
                                     {138, "Tipo de piezas"},
                                     {158, "Total piezas"},
                                     {178, "Anchura piezas"},
                                     {198, "Altura piezas"},
                                     {219, "Dificultad"},
                                     {239, "Tiempo"},
                                     {259, "Factor atracción"},
                                     {279, "Nombre"},
                                     {299, "Orden"}};

namespace {

// The patch stands at y 14 of the form; a value's baseline lies 10 below
// its row.
constexpr int ArribaParche = 14;
constexpr int XEtiqueta = 4;
constexpr int XFinGuia = 120;

} // namespace

QImage GeneraEtiquetasLibro() {
    QImage img(AnchoEtiquetasLibro, AltoEtiquetasLibro, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor tinta(25, 35, 95), guia(95, 105, 150);
    uint32_t semilla = 50;
    for (const FilaLibro &f : FilasRegistro) {
        const double base = f.y - ArribaParche + 10;
        const double ancho = EscribeAMano(p, QString::fromUtf8(f.etiqueta),
                                          QPointF(XEtiqueta, base), 15.0, tinta, semilla++);
        p.setPen(Qt::NoPen);
        p.setBrush(guia);
        for (double x = std::ceil((XEtiqueta + ancho + 3) / 3.5) * 3.5; x <= XFinGuia; x += 3.5) {
            p.drawEllipse(QPointF(x, base - 0.5), 0.7, 0.7);
        }
    }
    return img;
}
