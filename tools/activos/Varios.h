// The strip of small images of the customisation dialog, 318 x 24: the six
// shape icons, the up and down arrow buttons of the steppers, raised and
// pressed, and the key of the two-state selectors, raised and pressed. The
// dialog copies each out of row 1 at its x.
#pragma once

#include <QImage>
#include <QRect>

constexpr int AnchoVarios = 318;
constexpr int AltoVarios = 24;

// Icon of shape i (0..5): 26 x 22 at x = i x 26 + 1.
constexpr int AnchoForma = 26;
constexpr int AltoForma = 22;
inline QRect CeldaForma(int i) {
    return QRect(i * AnchoForma + 1, 1, AnchoForma, AltoForma);
}

// The arrow buttons, 24 x 14.
constexpr int AnchoFlecha = 24;
constexpr int AltoFlecha = 14;
constexpr int XSubeArriba = 158; // up, raised
constexpr int XBajaArriba = 183; // down, raised
constexpr int XSubePulsada = 208;
constexpr int XBajaPulsada = 233;

// The selector key, 29 x 20.
constexpr int AnchoTecla = 29;
constexpr int AltoTecla = 20;
constexpr int XTeclaArriba = 258;
constexpr int XTeclaPulsada = 288;

// Whether pixel (x, y) of an arrow button (0..23, 0..13) belongs to the
// triangle; the rest is the panel's grey, so that the button looks like a
// triangle on the panel.
bool DentroFlecha(bool sube, int x, int y);

// The whole strip, on the panel grey 0xC0C0C0.
QImage GeneraTiraVarios();
