// Superficie: construction, size, colours, picture, clip region,
// the checked pixel writer and the change report.
#include "raster/Superficie.h"

#include <algorithm>
#include <cmath>

namespace {

// The largest side a surface takes; larger sizes are cut to it.
constexpr double LADO_MAXIMO = 1048576.0; // 2^20

// Sizes are rounded to the nearest whole pixel, halves to even
// (std::nearbyint in the default rounding mode): 320.5 gives 320.

// A size rounded to the nearest whole pixel; negative or not a number is 0.
int32_t TamanoRedondeado(double v) {
    if (!(v > 0)) {
        return 0;
    }
    return static_cast<int32_t>(std::nearbyint(std::min(v, LADO_MAXIMO)));
}

} // namespace

Superficie::Superficie(int32_t ancho, int32_t alto, Color fondo)
    : ancho_(std::max(ancho, 0)), alto_(std::max(alto, 0)), fondo_(fondo),
      pix_(static_cast<size_t>(ancho_) * alto_, APixel(fondo)) {}

void Superficie::CambiaTamano(double ancho, double alto) {
    const int32_t w = TamanoRedondeado(ancho);
    const int32_t h = TamanoRedondeado(alto);
    if (w == ancho_ && h == alto_) {
        return;
    }
    std::vector<uint32_t> nuevos(static_cast<size_t>(w) * h, APixel(fondo_));
    const int32_t comunes = std::min(w, ancho_);
    for (int32_t y = 0; y < std::min(h, alto_); ++y) {
        std::copy_n(Fila(y), comunes, nuevos.data() + static_cast<size_t>(y) * w);
    }
    pix_.swap(nuevos);
    ancho_ = w;
    alto_ = h;
    Cambiado(Limites());
}

void Superficie::PonBackColor(Color c) {
    fondo_ = c;
    PintaFondoEImagen();
}

void Superficie::Cls() {
    PintaFondoEImagen();
    CurrentX = 0;
    CurrentY = 0;
}

void Superficie::QuitaImagen() {
    imagen_.clear();
    imagenAncho_ = imagenAlto_ = 0;
    PintaFondoEImagen();
}

// The background, and the kept picture at the top left corner.
void Superficie::PintaFondoEImagen() {
    std::fill(pix_.begin(), pix_.end(), APixel(fondo_));
    const int32_t comunes = std::min(ancho_, imagenAncho_);
    for (int32_t y = 0; y < std::min(alto_, imagenAlto_); ++y) {
        std::copy_n(imagen_.data() + static_cast<size_t>(y) * imagenAncho_, comunes, Fila(y));
    }
    Cambiado(Limites());
}

void Superficie::AsignaImagen(const Superficie &origen) {
    if (&origen == this) {
        Cambiado(Limites());
        return;
    }
    imagen_ = origen.pix_;
    imagenAncho_ = origen.ancho_;
    imagenAlto_ = origen.alto_;
    if (TomaTamanoDeImagen) {
        ancho_ = origen.ancho_;
        alto_ = origen.alto_;
        pix_ = origen.pix_;
        Cambiado(Limites());
    } else {
        PintaFondoEImagen();
    }
}

void Superficie::PonRecorte(const Region *r) {
    if (r != nullptr) {
        recorte_ = *r;
    } else {
        recorte_.reset();
    }
}

void Superficie::EscribePixel(int32_t x, int32_t y, uint32_t pixel) {
    if (!Limites().Contiene(x, y) || (recorte_ && !recorte_->Contiene(x, y))) {
        return;
    }
    uint32_t &p = Fila(y)[x];
    p = DrawMode == DRAWMODE_INVIERTE ? ~p | ALFA_OPACO : pixel | ALFA_OPACO;
}

void Superficie::Cambiado(const Rectangulo &r) {
    const Rectangulo tocado = Interseccion(r, Limites());
    if (!tocado.Vacio() && AlCambiar) {
        AlCambiar(tocado);
    }
}
