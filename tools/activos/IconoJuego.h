// The game's icon: a puzzle of four pieces, red, yellow, blue and green,
// the last one lifted out of its place. Drawn from one set of outlines on a
// 64 x 64 grid, so that the window's icon, the menu's icons at every size,
// the scalable SVG and the splash's small icon are the same picture.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QString>
#include <vector>

constexpr double LadoRejillaIcono = 64.0;

// One filled outline of the icon, bottom first.
struct TrazoIcono {
    QPainterPath camino;
    QColor relleno;
    bool contorno; // outlined in the icon's dark line
};

// The outlines on the 64 x 64 grid: the shadow of the lifted piece, then the
// four pieces.
std::vector<TrazoIcono> TrazosIcono();

// The icon at `lado` x `lado` pixels, on transparency.
QImage GeneraIcono(int lado);

// The sizes of the menu's icons, and the scalable picture as SVG text.
const std::vector<int> &LadosIcono();
QString SvgIcono();
