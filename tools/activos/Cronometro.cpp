#include "Cronometro.h"

#include <QPainter>

namespace {

void Linea(QPainter &p, int x0, int y0, int x1, int y1, QRgb color) {
    p.setPen(QColor::fromRgb(color));
    p.drawLine(x0, y0, x1, y1);
}

// A key: its face with a lighter top row, inside a frame that stands out.
void DibujaTecla(QPainter &p, int x0, int x1, QRgb cara, QRgb luz, QRgb sombra) {
    p.fillRect(QRect(x0, 5, x1 - x0 + 1, 9), QColor::fromRgb(cara));
    Linea(p, x0, 5, x1, 5, luz);
    Linea(p, x0, 5, x0, 13, luz);
    Linea(p, x0 + 1, 13, x1, 13, sombra);
    Linea(p, x1, 6, x1, 13, sombra);
}

} // namespace

QImage GeneraCronometro() {
    QImage c(AnchoCronometro, AltoCronometro, QImage::Format_RGB32);
    c.fill(0xFFC0C0C0);
    QPainter p(&c);
    const int w = AnchoCronometro - 1, h = AltoCronometro - 1;
    // The bevelled edge: white and light grey above and left, black and
    // dark grey below and right.
    Linea(p, 0, 0, w, 0, 0xFFFFFFFF);
    Linea(p, 0, 0, 0, h, 0xFFFFFFFF);
    Linea(p, 1, 1, w - 1, 1, 0xFFE0E0E0);
    Linea(p, 1, 1, 1, h - 1, 0xFFE0E0E0);
    Linea(p, 0, h, w, h, 0xFF000000);
    Linea(p, w, 0, w, h, 0xFF000000);
    Linea(p, 1, h - 1, w - 1, h - 1, 0xFF808080);
    Linea(p, w - 1, 1, w - 1, h - 1, 0xFF808080);
    // The keys, green then red, and their frames as the stopped clock draws
    // them (both raised; the program redraws them for its state).
    DibujaTecla(p, 5, 29, 0xFF008000, 0xFF40B040, 0xFF005000);
    DibujaTecla(p, 32, 56, 0xFFFF0000, 0xFFFF7060, 0xFFA00000);
    Linea(p, 4, 4, 31, 4, 0xFFFFFFFF);
    Linea(p, 4, 4, 4, 14, 0xFFFFFFFF);
    Linea(p, 31, 4, 31, 14, 0xFF000000);
    Linea(p, 4, 14, 31, 14, 0xFF000000);
    Linea(p, 31, 4, 58, 4, 0xFFFFFFFF);
    Linea(p, 31, 4, 31, 14, 0xFF000000);
    Linea(p, 58, 4, 58, 14, 0xFF000000);
    Linea(p, 31, 14, 58, 14, 0xFF000000);
    Linea(p, 32, 5, 32, 13, 0xFFFF7060);
    // The sunken field of the time, x 4..56 and y 19..33 inside its frame.
    Linea(p, 3, 18, 57, 18, 0xFF808080);
    Linea(p, 3, 18, 3, 34, 0xFF808080);
    Linea(p, 57, 18, 57, 34, 0xFFFFFFFF);
    Linea(p, 3, 34, 57, 34, 0xFFFFFFFF);
    return c;
}
