// Flood fills, 4-connected.
//
// The area is found on the surface's own pixels and painted with FillColor
// as it is found (copy mode: the draw mode is not applied). The clip region
// limits only the painting: pixels outside it are still crossed, so an area
// joined through them is painted on both sides. A bitmap of visited pixels
// keeps the fill finite whatever FillColor is.
#include <utility>
#include <vector>

#include "raster/Raster.h"
#include "raster/Trazos.h"

namespace {

constexpr uint32_t COLOR_24 = 0xFFFFFFu;

// Fills the 4-connected area of pixels for which `pertenece` holds that
// holds the seed. Scanline: each pixel popped grows to its whole run on
// its row, and the runs above and below are pushed by their first pixel.
template <class Pertenece> int Rellena(Superficie &s, int32_t x, int32_t y, Pertenece pertenece) {
    if (!s.Limites().Contiene(x, y) || !pertenece(s.Fila(y)[x])) {
        return 0;
    }
    const int32_t ancho = s.Ancho(), alto = s.Alto();
    std::vector<uint8_t> visto(static_cast<size_t>(ancho) * alto, 0);
    const uint32_t relleno = APixel(s.FillColor);
    std::vector<std::pair<int32_t, int32_t>> pendientes{{x, y}};
    Rectangulo caja{x, y, x + 1, y + 1};
    while (!pendientes.empty()) {
        const auto [px, py] = pendientes.back();
        pendientes.pop_back();
        const uint32_t *fila = s.Fila(py);
        uint8_t *v = visto.data() + static_cast<size_t>(py) * ancho;
        if (v[px] || !pertenece(fila[px])) {
            continue;
        }
        int32_t l = px, r = px;
        while (l > 0 && !v[l - 1] && pertenece(fila[l - 1])) {
            --l;
        }
        while (r + 1 < ancho && !v[r + 1] && pertenece(fila[r + 1])) {
            ++r;
        }
        std::fill(v + l, v + r + 1, uint8_t{1});
        for (const int32_t ny : {py - 1, py + 1}) {
            if (ny < 0 || ny >= alto) {
                continue;
            }
            const uint32_t *vecina = s.Fila(ny);
            const uint8_t *vv = visto.data() + static_cast<size_t>(ny) * ancho;
            bool enTramo = false;
            for (int32_t i = l; i <= r; ++i) {
                const bool libre = !vv[i] && pertenece(vecina[i]);
                if (libre && !enTramo) {
                    pendientes.emplace_back(i, ny);
                }
                enTramo = libre;
            }
        }
        // Painted after its neighbours are read; every painted pixel is
        // already marked visited, so it is never tested again.
        trazos::PintaTramo(s, py, l, r + 1, relleno, false);
        caja = trazos::Union(caja, Rectangulo{l, py, r + 1, py + 1});
    }
    s.Cambiado(caja);
    return 1;
}

} // namespace

int FloodFill(Superficie &s, int32_t x, int32_t y, Color limite) {
    const uint32_t borde = APixel(limite) & COLOR_24;
    return Rellena(s, x, y, [borde](uint32_t p) { return (p & COLOR_24) != borde; });
}

int ExtFloodFill(Superficie &s, int32_t x, int32_t y, Color color, uint32_t tipo) {
    if (tipo == FLOODFILLBORDER) {
        return FloodFill(s, x, y, color);
    }
    if (tipo != FLOODFILLSURFACE) {
        return 0;
    }
    const uint32_t area = APixel(color) & COLOR_24;
    return Rellena(s, x, y, [area](uint32_t p) { return (p & COLOR_24) == area; });
}

int64_t RellenaEncerrados(Superficie &s, Color color,
                          const std::vector<std::pair<int32_t, int32_t>> &abiertos) {
    const int32_t ancho = s.Ancho(), alto = s.Alto();
    const uint32_t area = APixel(color) & COLOR_24;
    auto delArea = [&s, area](int32_t x, int32_t y) { return (s.Fila(y)[x] & COLOR_24) == area; };
    // What the border reaches, 4-connected through the colour.
    std::vector<uint8_t> fuera(static_cast<size_t>(ancho) * alto, 0);
    std::vector<std::pair<int32_t, int32_t>> pendientes;
    auto visita = [&](int32_t x, int32_t y) {
        if (x < 0 || y < 0 || x >= ancho || y >= alto) {
            return;
        }
        uint8_t &v = fuera[static_cast<size_t>(y) * ancho + x];
        if (v == 0 && delArea(x, y)) {
            v = 1;
            pendientes.emplace_back(x, y);
        }
    };
    for (int32_t x = 0; x < ancho; ++x) {
        visita(x, 0);
        visita(x, alto - 1);
    }
    for (int32_t y = 0; y < alto; ++y) {
        visita(0, y);
        visita(ancho - 1, y);
    }
    for (const auto &[x, y] : abiertos) {
        visita(x, y);
    }
    while (!pendientes.empty()) {
        const auto [x, y] = pendientes.back();
        pendientes.pop_back();
        visita(x - 1, y);
        visita(x + 1, y);
        visita(x, y - 1);
        visita(x, y + 1);
    }
    const uint32_t relleno = APixel(s.FillColor);
    int64_t pintados = 0;
    for (int32_t y = 0; y < alto; ++y) {
        for (int32_t x = 0; x < ancho; ++x) {
            if (fuera[static_cast<size_t>(y) * ancho + x] == 0 && delArea(x, y)) {
                trazos::PintaTramo(s, y, x, x + 1, relleno, false);
                ++pintados;
            }
        }
    }
    if (pintados > 0) {
        s.Cambiado(s.Limites());
    }
    return pintados;
}
