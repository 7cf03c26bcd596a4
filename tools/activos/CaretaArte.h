// The splash's three source pictures, on black. Every picture, and each of
// the three bands of the text picture, ends in a black row: the splash
// scrolls them up one pixel a frame without clearing, and that row wipes
// the row each one leaves behind.
#pragma once

#include <QDir>
#include <QImage>
#include <QString>
#include <ostream>

// The logo, 96 x 44: three pieces of a puzzle fitted in a row.
QImage GeneraLogoCareta();
// The game's icon at 32 x 32 on black.
QImage GeneraIconoCareta();
// The text, 241 x 87: the title in large letters (rows 0 to 48) and two
// lines of small text (rows 49 to 71 and 72 to 86).
QImage GeneraTextoCareta();

// The bands of the text picture: first row and height.
struct BandaCareta {
    int arriba;
    int alto;
    int ancho; // as much as the splash copies of it
};
constexpr BandaCareta BandasCareta[3] = {{0, 49, 236}, {49, 23, 238}, {72, 15, 240}};

// What the two small lines say.
QString LineaCareta(int banda);

// Writes the splash's pictures into careta/ and the game's icon, at every
// size and as SVG, into iconos/ under `raiz`. True when all went well.
bool EscribeCaretaEIconos(const QDir &raiz, std::ostream &informe);
