// Compares a freshly drawn asset with the committed one. Antialiased edges
// may come out a unit or two apart in a colour channel from one CPU's
// vector path to another's, so a channel may differ by a little; anything
// drawn in another place or colour differs by far more.
#pragma once

#include <QImage>
#include <cstdlib>
#include <gtest/gtest.h>

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
