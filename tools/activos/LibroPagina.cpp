// The narrow page of the history book.
#include <QPainterPath>
#include <cmath>

#include "Libro.h"

const PestanaLibro PestanasLibro[4] = {{30, 96, "FECHA", "HORA"},
                                       {102, 168, "NOMBRE", "DIFICULTAD"},
                                       {174, 240, "IMAGEN", "DIFICULTAD"},
                                       {246, 312, "DIFICULTAD", "TIEMPO"}};

const FilaLibro FilasPrimeraPagina[13] = {
    {42, "Archivo imagen"},   {63, "Tamaño imagen"},   {84, "Piezas por lado"},
    {106, "Clase de piezas"}, {127, "Tipo de piezas"}, {148, "Total piezas"},
    {169, "Anchura piezas"},  {190, "Altura piezas"},  {212, "Dificultad"},
    {233, "Tiempo"},          {254, "Histórico"},      {275, "Resuelto"},
    {293, "Nombre"}};

namespace {

const QColor Tinta(25, 35, 95);
const QColor TintaClara(95, 105, 150);
const QColor Oro(205, 165, 70);
const QColor BordePagina(150, 150, 150);
const QColor ColoresPestana[4] = {
    {170, 200, 240}, {180, 225, 170}, {245, 215, 150}, {240, 180, 190}};

// Where a label starts and where its leader ends, in the bitmap's x.
constexpr int XEtiqueta = 100;
constexpr int XFinGuia = 216;
// The letters of the labels and of the tabs, in pixels.
constexpr double LetraEtiqueta = 15.0;
constexpr double LetraPestana = 11.0;

// The frame of gold tooling near the cover's edges.
void PintaTapa(QPainter &p) {
    p.fillRect(0, 0, AnchoPaginaLibro, AltoPaginaLibro, ColorTapaLibro);
    p.fillRect(1, 1, AnchoPaginaLibro - 2, 1, Oro);
    p.fillRect(1, AltoPaginaLibro - 2, AnchoPaginaLibro - 2, 1, Oro);
    p.fillRect(1, 1, 1, AltoPaginaLibro - 2, Oro);
    p.fillRect(AnchoPaginaLibro - 2, 1, 1, AltoPaginaLibro - 2, Oro);
}

// The page, pure white inside a grey edge, with the edges of the pages
// under it showing at the foot, and the fold of the book at x 57.
void PintaHoja(QPainter &p) {
    const QColor canto(225, 222, 214);
    for (int i = 2; i >= 1; --i) {
        const int y = PaginaAbajo + 2 * i;
        p.fillRect(PaginaIzquierda + 2 * i, y - 1, PaginaDerecha - PaginaIzquierda - 4 * i + 1, 2,
                   canto);
        p.fillRect(PaginaIzquierda + 2 * i, y, PaginaDerecha - PaginaIzquierda - 4 * i + 1, 1,
                   BordePagina);
    }
    p.fillRect(QRect(QPoint(PaginaIzquierda, PaginaArriba), QPoint(PaginaDerecha, PaginaAbajo)),
               BordePagina);
    p.fillRect(QRect(QPoint(PaginaIzquierda + 1, PaginaArriba + 1),
                     QPoint(PaginaDerecha - 1, PaginaAbajo - 1)),
               Qt::white);
    const int sombras[] = {175, 200, 218, 232, 242, 249};
    for (int i = 0; i < 6; ++i) {
        p.fillRect(57 + i, PaginaArriba + 1, 1, PaginaAbajo - PaginaArriba - 1,
                   QColor(sombras[i], sombras[i], sombras[i]));
    }
}

// Text turned a quarter: reading upwards on the left margin, downwards on
// the right one, centred on (x, y).
// A word longer than the tab is set smaller.
void EscribeVertical(QPainter &p, const QString &texto, double x, double y, bool izquierda,
                     uint32_t semilla) {
    constexpr double largo = 58;
    const double natural = AnchoAMano(texto, LetraPestana, Mano::Mayusculas);
    const double letra = natural > largo ? LetraPestana * largo / natural : LetraPestana;
    const double ancho = AnchoAMano(texto, letra, Mano::Mayusculas);
    const double medio = AltoMayusculas(letra, Mano::Mayusculas) / 2;
    p.save();
    if (izquierda) {
        p.translate(x + medio, y + ancho / 2);
        p.rotate(-90);
    } else {
        p.translate(x - medio, y - ancho / 2);
        p.rotate(90);
    }
    EscribeAMano(p, texto, QPointF(0, 0), letra, Tinta, semilla, Mano::Mayusculas);
    p.restore();
}

// A tab: rounded on its outer side, joined to the page on the inner one,
// its two words in two columns, the first the outer one.
void PintaPestana(QPainter &p, int i, bool izquierda) {
    const PestanaLibro &t = PestanasLibro[i];
    const int x0 = izquierda ? 3 : PaginaDerecha + 1;
    const QRectF caja(x0, t.arriba, 26, t.abajo - t.arriba + 1);
    QPainterPath forma;
    forma.addRoundedRect(caja.adjusted(izquierda ? 0.5 : -6, 0.5, izquierda ? 6 : -0.5, -0.5), 5,
                         5);
    QPainterPath pagina;
    pagina.addRect(izquierda ? QRectF(PaginaIzquierda, 0, 300, 400)
                             : QRectF(PaginaDerecha - 300, 0, 300, 400));
    p.save();
    // Nothing of the tab reaches the page's edge, which no patch covers.
    p.setClipRect(izquierda ? QRect(0, 0, PaginaIzquierda, AltoPaginaLibro)
                            : QRect(PaginaDerecha + 1, 0, AnchoPaginaLibro, AltoPaginaLibro));
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(ColoresPestana[i].darker(170), 1));
    p.setBrush(ColoresPestana[i]);
    p.drawPath(forma.subtracted(pagina));
    p.restore();
    const double medio = (t.arriba + t.abajo + 1) / 2.0;
    const double exterior = izquierda ? x0 + 8.0 : x0 + 18.0;
    const double interior = izquierda ? x0 + 18.5 : x0 + 7.5;
    EscribeVertical(p, t.primera, exterior, medio, izquierda, 100 + i);
    EscribeVertical(p, t.segunda, interior, medio, izquierda, 200 + i);
}

// The return arrow on a gold disc, at x 4..26, y 5..27.
void PintaFlechaVuelta(QPainter &p) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF centro(15.5, 16.5);
    QRadialGradient brillo(centro - QPointF(3, 3), 12);
    brillo.setColorAt(0, QColor(250, 225, 140));
    brillo.setColorAt(1, Oro);
    p.setPen(QPen(Oro.darker(160), 1));
    p.setBrush(brillo);
    p.drawEllipse(centro, 10.5, 10.5);
    QPainterPath arco;
    arco.moveTo(centro + QPointF(5.5, 4));
    arco.cubicTo(centro + QPointF(7, -4), centro + QPointF(1, -6.5), centro + QPointF(-4, -3));
    p.setPen(QPen(ColorTapaLibro, 2.2, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(arco);
    QPolygonF punta;
    punta << centro + QPointF(-7.5, -0.5) << centro + QPointF(-2.5, -6.5)
          << centro + QPointF(-1.5, 0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(ColorTapaLibro);
    p.drawPolygon(punta);
    p.restore();
}

// A folded corner at the foot of the page: the flap turned in over the
// page, the cover showing where the corner was.
void PintaEsquina(QPainter &p, bool izquierda) {
    const double borde = izquierda ? PaginaIzquierda : PaginaDerecha + 1;
    const double dentro = izquierda ? 55 : 221;
    const double arriba = 318, abajo = PaginaAbajo + 1;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QPolygonF hueco;
    hueco << QPointF(borde, arriba) << QPointF(borde, abajo + 5) << QPointF(dentro, abajo + 5)
          << QPointF(dentro, abajo);
    p.setPen(Qt::NoPen);
    p.setBrush(ColorTapaLibro);
    p.drawPolygon(hueco);
    QPolygonF sombra;
    sombra << QPointF(dentro - (izquierda ? 2 : -2), arriba + 2) << QPointF(borde, arriba)
           << QPointF(dentro, abajo);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawPolygon(sombra.translated(izquierda ? 1.5 : -1.5, 1.5));
    QPolygonF solapa;
    solapa << QPointF(dentro, arriba) << QPointF(borde, arriba) << QPointF(dentro, abajo);
    QLinearGradient luz(QPointF(borde, abajo), QPointF(dentro, arriba));
    luz.setColorAt(0, QColor(205, 205, 205));
    luz.setColorAt(1, QColor(248, 248, 248));
    p.setPen(QPen(BordePagina, 1));
    p.setBrush(luz);
    p.drawPolygon(solapa);
    // A small mark on the flap says which way the page turns.
    const double mx = izquierda ? dentro - 7 : dentro + 7, my = arriba + 5;
    const double s = izquierda ? 1 : -1;
    QPolygonF marca;
    marca << QPointF(mx + s * 2, my - 2.5) << QPointF(mx - s * 1.5, my)
          << QPointF(mx + s * 2, my + 2.5);
    p.setPen(QPen(TintaClara, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(marca);
    p.restore();
}

// Dots from the end of a label to the leader's end, on its baseline.
void PintaGuia(QPainter &p, double desde, double hasta, double base) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(TintaClara);
    const double primero = std::ceil((desde + 3) / 3.5) * 3.5;
    for (double x = primero; x <= hasta; x += 3.5) {
        p.drawEllipse(QPointF(x, base - 0.5), 0.7, 0.7);
    }
    p.restore();
}

// "Puzzle Actual", underlined by hand, and the labels of the first page on
// the baselines of the values the book writes after them.
void PintaPrimeraPagina(QPainter &p) {
    const QString titulo = QStringLiteral("Puzzle Actual");
    const double t = AnchoAMano(titulo, 20);
    const double x = (XEtiqueta + XFinGuia) / 2.0 - t / 2;
    EscribeAMano(p, titulo, QPointF(x, 29), 20, Tinta, 7);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath raya;
    raya.moveTo(x - 2, 33);
    raya.cubicTo(x + t / 3, 31.6, x + 2 * t / 3, 34.2, x + t + 3, 32.4);
    p.setPen(QPen(Tinta, 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(raya);
    p.restore();
    uint32_t semilla = 20;
    for (const FilaLibro &f : FilasPrimeraPagina) {
        // The name box stands 19 high from its row: its text sits lower.
        const double base = f.y + (f.y == 293 ? 13 : 10);
        const double ancho =
            EscribeAMano(p, QString::fromUtf8(f.etiqueta), QPointF(XEtiqueta, base), LetraEtiqueta,
                         Tinta, semilla++);
        if (f.y != 293) {
            PintaGuia(p, XEtiqueta + ancho, XFinGuia, base);
        }
    }
}

// The columns the book repeats to make its double page hold the plain page
// alone: whatever the corners' shadows or the labels' ink left on them goes.
void LimpiaColumnasRepetidas(QImage &img, const QImage &fondo) {
    for (int x : {56, 220}) {
        for (int y = 0; y < AltoPaginaLibro; ++y) {
            img.setPixel(x, y, fondo.pixel(x, y));
        }
    }
}

} // namespace

QImage GeneraPaginaLibro() {
    QImage fondo(AnchoPaginaLibro, AltoPaginaLibro, QImage::Format_RGB32);
    {
        QPainter p(&fondo);
        PintaTapa(p);
        PintaHoja(p);
    }
    QImage img = fondo;
    QPainter p(&img);
    for (int i = 0; i < 4; ++i) {
        PintaPestana(p, i, true);
        PintaPestana(p, i, false);
    }
    PintaFlechaVuelta(p);
    PintaEsquina(p, true);
    PintaEsquina(p, false);
    PintaPrimeraPagina(p);
    p.end();
    LimpiaColumnasRepetidas(img, fondo);
    return img;
}
