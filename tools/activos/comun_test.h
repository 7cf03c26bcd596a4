// What the asset tests share. An application for Qt's text: the text is
// drawn from the font files, but an application without a display keeps
// Qt's font machinery quiet.
//
// Compares a freshly drawn asset with the committed one. Antialiased edges
// may come out a unit or two apart in a colour channel from one CPU's
// vector path to another's, so a channel may differ by a little; anything
// drawn in another place or colour differs by far more.
#pragma once

#include <QGuiApplication>
#include <QImage>
#include <cstdlib>
#include <gtest/gtest.h>

inline void AseguraAplicacion() {
    static int argc = 1;
    static char nombre[] = "teselari_activos_tests";
    static char *argv[] = {nombre, nullptr};
    if (QGuiApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static QGuiApplication app(argc, argv);
    }
}

inline testing::AssertionResult CasiIguales(const QImage &a, const QImage &b, int tolerancia = 3) {
    if (a.size() != b.size()) {
        return testing::AssertionFailure() << "sizes differ";
    }
    const QImage x = a.convertToFormat(QImage::Format_ARGB32);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32);
    for (int j = 0; j < x.height(); ++j) {
        for (int i = 0; i < x.width(); ++i) {
            const QRgb p = x.pixel(i, j), q = y.pixel(i, j);
            if (std::abs(qRed(p) - qRed(q)) > tolerancia ||
                std::abs(qGreen(p) - qGreen(q)) > tolerancia ||
                std::abs(qBlue(p) - qBlue(q)) > tolerancia ||
                std::abs(qAlpha(p) - qAlpha(q)) > tolerancia) {
                return testing::AssertionFailure()
                       << "pixel " << i << "," << j << ": " << std::hex << p << " against " << q;
            }
        }
    }
    return testing::AssertionSuccess();
}

// Compares a drawn picture with its lossy copy (a JPEG): the mean colour of
// each 16 x 16 block stays within `tolerancia` in every channel. The
// encoder keeps a block's mean and loses its fine detail; anything drawn in
// another place or colour moves the means of the blocks it touches.
inline testing::AssertionResult ParecidasPorBloques(const QImage &a, const QImage &b,
                                                    double tolerancia) {
    if (a.size() != b.size()) {
        return testing::AssertionFailure() << "sizes differ";
    }
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    double peor = 0;
    QPoint donde;
    for (int by = 0; by + 16 <= x.height(); by += 16) {
        for (int bx = 0; bx + 16 <= x.width(); bx += 16) {
            double d[3] = {0, 0, 0};
            for (int j = by; j < by + 16; ++j) {
                for (int i = bx; i < bx + 16; ++i) {
                    const QRgb p = x.pixel(i, j), q = y.pixel(i, j);
                    d[0] += qRed(p) - qRed(q);
                    d[1] += qGreen(p) - qGreen(q);
                    d[2] += qBlue(p) - qBlue(q);
                }
            }
            for (double c : d) {
                if (std::abs(c) / 256 > peor) {
                    peor = std::abs(c) / 256;
                    donde = QPoint(bx, by);
                }
            }
        }
    }
    if (peor > tolerancia) {
        return testing::AssertionFailure()
               << "block at " << donde.x() << "," << donde.y() << " differs by " << peor;
    }
    return testing::AssertionSuccess();
}
