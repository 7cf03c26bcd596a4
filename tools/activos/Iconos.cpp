#include "Iconos.h"

#include "panels/SemillasBotones.h"

#include <QPainter>
#include <array>

std::vector<QPoint> SemillasBoton(int i) {
    if (i < 1 || i > NumeroIconos) {
        return {};
    }
    std::vector<QPoint> puntos;
    if (i < static_cast<int>(SemillasSombra().size())) {
        for (const auto &[x, y] : SemillasSombra()[i]) {
            puntos.emplace_back(x, y);
        }
    }
    return puntos;
}

namespace {

constexpr int N = LadoIcono;

bool EnCapa(const QImage &capa, int x, int y) {
    return x >= 0 && y >= 0 && x < N && y < N && qAlpha(capa.pixel(x, y)) >= 128;
}

// Composes the layers; pixels in `suprimidas` never take shadow.
QImage Compone(const std::vector<QImage> &capas, const std::vector<bool> &suprimidas,
               std::vector<bool> &sombra) {
    QImage res(N, N, QImage::Format_ARGB32);
    res.fill(ColorPanel);
    sombra.assign(N * N, false);
    for (const QImage &c0 : capas) {
        const QImage c = c0.convertToFormat(QImage::Format_ARGB32);
        std::vector<bool> nueva(N * N, false);
        for (int y = 0; y < N; ++y) {
            for (int x = 0; x < N; ++x) {
                const int k = y * N + x;
                if (!EnCapa(c, x, y) && EnCapa(c, x - DesplazaSombra, y - DesplazaSombra) &&
                    !suprimidas[k]) {
                    nueva[k] = true;
                }
            }
        }
        for (int y = 0; y < N; ++y) {
            for (int x = 0; x < N; ++x) {
                const int k = y * N + x;
                if (nueva[k]) {
                    res.setPixel(x, y, ColorSombra);
                    sombra[k] = true;
                    continue;
                }
                const QRgb a = c.pixel(x, y);
                const int al = qAlpha(a);
                if (al == 0) {
                    continue;
                }
                if (al >= 128) {
                    sombra[k] = false;
                }
                if (sombra[k]) {
                    continue; // a faint edge never stains a shadow
                }
                const QRgb b = res.pixel(x, y);
                auto mezcla = [al](int s, int d) { return (s * al + d * (255 - al) + 127) / 255; };
                res.setPixel(x, y,
                             qRgb(mezcla(qRed(a), qRed(b)), mezcla(qGreen(a), qGreen(b)),
                                  mezcla(qBlue(a), qBlue(b))));
            }
        }
    }
    return res;
}

} // namespace

QImage ComponeIcono(const std::vector<QImage> &capas, const std::vector<QPoint> &semillas) {
    std::vector<bool> sombra;
    std::vector<bool> suprimidas(N * N, false);
    Compone(capas, suprimidas, sombra);
    // The shadow reached from the seeds (4-connected) is kept.
    std::vector<bool> alcanzada(N * N, false);
    std::vector<QPoint> pila;
    for (const QPoint &s : semillas) {
        pila.push_back(s - QPoint(5, 5));
    }
    while (!pila.empty()) {
        const QPoint p = pila.back();
        pila.pop_back();
        if (p.x() < 0 || p.y() < 0 || p.x() >= N || p.y() >= N) {
            continue;
        }
        const int k = p.y() * N + p.x();
        if (!sombra[k] || alcanzada[k]) {
            continue;
        }
        alcanzada[k] = true;
        pila.insert(pila.end(),
                    {p + QPoint(1, 0), p - QPoint(1, 0), p + QPoint(0, 1), p - QPoint(0, 1)});
    }
    // An image without seeds is never pressed: it keeps all of its shadow.
    for (int k = 0; k < N * N && !semillas.empty(); ++k) {
        suprimidas[k] = sombra[k] && !alcanzada[k];
    }
    QImage res = Compone(capas, suprimidas, sombra);
    // Nothing but the shadow takes its exact colour.
    for (int y = 0; y < N; ++y) {
        for (int x = 0; x < N; ++x) {
            if (!sombra[y * N + x] && res.pixel(x, y) == ColorSombra) {
                res.setPixel(x, y, qRgb(0, 0, 0x81));
            }
        }
    }
    return res.convertToFormat(QImage::Format_RGB32);
}

QImage GeneraTiraBotones() {
    QImage tira(AnchoTira, AltoTira, QImage::Format_RGB32);
    tira.fill(ColorPanel);
    QPainter p(&tira);
    for (int i = 1; i <= NumeroIconos; ++i) {
        p.drawImage(XIcono(i), 1, ComponeIcono(CapasIcono(i), SemillasBoton(i)));
    }
    return tira;
}
