#include "dialog/GuardaBmp.h"

#include <cstdint>
#include <fstream>
#include <vector>

#include "raster/Superficie.h"

namespace {

constexpr uint32_t CABECERA_FICHERO = 14;
constexpr uint32_t CABECERA_INFO = 40;

void Pon16(std::vector<uint8_t> &b, uint16_t v) {
    b.push_back(static_cast<uint8_t>(v & 0xFF));
    b.push_back(static_cast<uint8_t>(v >> 8));
}

void Pon32(std::vector<uint8_t> &b, uint32_t v) {
    for (int i = 0; i < 4; ++i) {
        b.push_back(static_cast<uint8_t>((v >> (8 * i)) & 0xFF));
    }
}

} // namespace

bool GuardaBmp(const Superficie &s, const std::string &fichero) {
    const auto ancho = static_cast<uint32_t>(s.Ancho());
    const auto alto = static_cast<uint32_t>(s.Alto());
    const uint32_t fila = (ancho * 3 + 3) & ~3u;
    const uint32_t datos = fila * alto;
    std::vector<uint8_t> b;
    b.reserve(CABECERA_FICHERO + CABECERA_INFO + datos);
    b.push_back('B');
    b.push_back('M');
    Pon32(b, CABECERA_FICHERO + CABECERA_INFO + datos);
    Pon32(b, 0);
    Pon32(b, CABECERA_FICHERO + CABECERA_INFO);
    Pon32(b, CABECERA_INFO);
    Pon32(b, ancho);
    Pon32(b, alto);
    Pon16(b, 1);  // planes
    Pon16(b, 24); // bits per pixel
    Pon32(b, 0);  // BI_RGB
    Pon32(b, datos);
    Pon32(b, 3780); // 96 dots per inch, in dots per metre
    Pon32(b, 3780);
    Pon32(b, 0);
    Pon32(b, 0);
    for (uint32_t y = alto; y-- > 0;) {
        const uint32_t *p = s.Fila(static_cast<int32_t>(y));
        for (uint32_t x = 0; x < ancho; ++x) {
            // The store is 0xFFRRGGBB: blue, green, red in file order.
            b.push_back(static_cast<uint8_t>(p[x] & 0xFF));
            b.push_back(static_cast<uint8_t>((p[x] >> 8) & 0xFF));
            b.push_back(static_cast<uint8_t>((p[x] >> 16) & 0xFF));
        }
        b.resize(b.size() + (fila - ancho * 3), 0);
    }
    std::ofstream f(fichero, std::ios::binary | std::ios::trunc);
    if (!f) {
        return false;
    }
    f.write(reinterpret_cast<const char *>(b.data()), static_cast<std::streamsize>(b.size()));
    return static_cast<bool>(f);
}
