// The two bitmaps of the history book: the narrow page (275 x 344) that the
// book spreads into a double page when it opens, and the labels of a record
// (124 x 298) that lie over either page in the sections.
//
// The page holds, on the cover's dark red, a white page from x 29 to 245
// with the tabs of the four sections sticking out on both sides (x 3..28 and
// 246..271, in two columns of vertical text), the return arrow at the top
// left (x 4..26, y 5..27), the labels of the first page with dotted leaders
// (x 96..216, so that the labels' patch hides them in the sections), the
// plain columns x 56 and 220 that the spreading repeats, the fold of the
// book at x 57, and the two folded corners at the foot (x 30..54 and
// 221..244, y 318..334). The labels are lettered by hand in ink; the white
// is pure, so the white boxes the book clears its values with don't show.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

constexpr int AnchoPaginaLibro = 275;
constexpr int AltoPaginaLibro = 344;
constexpr int AnchoEtiquetasLibro = 124;
constexpr int AltoEtiquetasLibro = 298;

// The cover: 0x000080 in the game's 0x00BBGGRR, a dark red.
const QColor ColorTapaLibro(0x80, 0, 0);

// The page's white and its edges, in the bitmap's x.
constexpr int PaginaIzquierda = 29;
constexpr int PaginaDerecha = 245;
constexpr int PaginaArriba = 6;
constexpr int PaginaAbajo = 335;

// The y ranges of the four tabs and their two words.
struct PestanaLibro {
    int arriba, abajo;
    const char *primera, *segunda;
};
extern const PestanaLibro PestanasLibro[4];

// The y at which the game writes each value of the first page, and of a
// record in the sections (form coordinates; the labels' patch stands at
// y 14), with their labels.
struct FilaLibro {
    int y;
    const char *etiqueta;
};
extern const FilaLibro FilasPrimeraPagina[13];
extern const FilaLibro FilasRegistro[15];

QImage GeneraPaginaLibro();
QImage GeneraEtiquetasLibro();

// The two hands of the book: the chancery italic of the URW fonts for the
// labels, and the firmer capitals of a bold italic for the tabs.
enum class Mano { Cancilleresca, Mayusculas };

// Text lettered by hand: each letter of the face turned and lifted a little
// by a fixed-seed draw, in ink. `base` is the start of the baseline. Returns
// the width written.
double EscribeAMano(QPainter &p, const QString &texto, QPointF base, double pixeles,
                    const QColor &tinta, uint32_t semilla, Mano mano = Mano::Cancilleresca);
double AnchoAMano(const QString &texto, double pixeles, Mano mano = Mano::Cancilleresca);
// The height of the capitals of a hand at a size.
double AltoMayusculas(double pixeles, Mano mano);
