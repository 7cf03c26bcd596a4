// Windows metafiles through libwmf and its gd device, at 96 dpi. The gd
// device draws ellipses and chords without their fill and rounded
// rectangles with square corners; the game accepts that.
#include "qt/Decodificadores.h"

#ifdef TESELARI_CON_WMF

#include <libwmf/api.h>
#include <libwmf/gd.h>
#include <libwmf/gd/gd.h>

#include <cstdlib>
#include <memory>

namespace {

constexpr double PUNTOS_POR_PULGADA = 96.0;
constexpr unsigned int TRANSPARENTE_GD = 127;

struct CierraWmf {
    void operator()(wmfAPI *api) const { wmf_api_destroy(api); }
};
using ApiWmf = std::unique_ptr<wmfAPI, CierraWmf>;

ApiWmf CreaApi() {
    wmfAPI_Options opciones{};
    opciones.function = wmf_gd_function;
    const unsigned long banderas =
        WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
    wmfAPI *api = nullptr;
    if (wmf_api_create(&api, banderas, &opciones) != wmf_E_None) {
        if (api != nullptr) {
            wmf_api_destroy(api);
        }
        return nullptr;
    }
    return ApiWmf(api);
}

// gd's 0xAARRGGBB, alpha 0 opaque and 127 clear, laid over white.
QRgb SobreBlanco(int pixel) {
    const auto p = static_cast<uint32_t>(pixel);
    const unsigned int alfa = std::min((p >> 24) & 0x7Fu, TRANSPARENTE_GD);
    auto canal = [alfa](unsigned int c) {
        return (c * (TRANSPARENTE_GD - alfa) + 255 * alfa) / TRANSPARENTE_GD;
    };
    return qRgb(static_cast<int>(canal((p >> 16) & 0xFF)), static_cast<int>(canal((p >> 8) & 0xFF)),
                static_cast<int>(canal(p & 0xFF)));
}

// The picture the gd device leaves behind is the caller's, and the library
// exports no way to free it: its parts are freed here by the layout of the
// header it installs. The brush it points to is the library's own.
struct LiberaGd {
    void operator()(gdImage *im) const {
        std::free(im->_tpixels);
        std::free(im->tpixels);
        std::free(im->polyInts);
        std::free(im->style);
        std::free(im);
    }
};

QImage CopiaGd(gdImage *imagenGd, unsigned int ancho, unsigned int alto) {
    const int *pixeles = wmf_gd_image_pixels(imagenGd);
    if (pixeles == nullptr || imagenGd->trueColor == 0 || imagenGd->sx != static_cast<int>(ancho) ||
        imagenGd->sy != static_cast<int>(alto)) {
        return {};
    }
    QImage imagen(static_cast<int>(ancho), static_cast<int>(alto), QImage::Format_RGB32);
    if (imagen.isNull()) {
        return {};
    }
    for (unsigned int y = 0; y < alto; ++y) {
        auto *fila = reinterpret_cast<QRgb *>(imagen.scanLine(static_cast<int>(y)));
        for (unsigned int x = 0; x < ancho; ++x) {
            fila[x] = SobreBlanco(pixeles[static_cast<size_t>(y) * ancho + x]);
        }
    }
    return imagen;
}

} // namespace

bool HayDecodificadorWmf() {
    return true;
}

Decodificacion DecodificaWmf(const QByteArray &datos) {
    ApiWmf api = CreaApi();
    if (!api) {
        return {};
    }
    QByteArray copia = datos; // libwmf wants a writable buffer
    auto *bytes = reinterpret_cast<unsigned char *>(copia.data());
    wmfD_Rect caja{};
    unsigned int ancho = 0, alto = 0;
    if (wmf_mem_open(api.get(), bytes, static_cast<long>(copia.size())) != wmf_E_None ||
        wmf_scan(api.get(), 0, &caja) != wmf_E_None ||
        wmf_display_size(api.get(), &ancho, &alto, PUNTOS_POR_PULGADA, PUNTOS_POR_PULGADA) !=
            wmf_E_None ||
        ancho == 0 || alto == 0) {
        return {};
    }
    if (TamanoDesmesurado(ancho, alto)) {
        return {EstadoCarga::Desmesurada, ancho, alto, {}};
    }
    // A metafile is drawn straight at the size it is decoded at.
    const QSize tamano = TamanoDecodificado(ancho, alto);
    wmf_gd_t *gd = WMF_GD_GetData(api.get());
    gd->type = wmf_gd_image;
    gd->width = static_cast<unsigned int>(tamano.width());
    gd->height = static_cast<unsigned int>(tamano.height());
    gd->bbox = caja;
    const wmf_error_t error = wmf_play(api.get(), 0, &caja);
    const std::unique_ptr<gdImage, LiberaGd> imagenGd(static_cast<gdImage *>(gd->gd_image));
    gd->gd_image = nullptr;
    if (error != wmf_E_None || !imagenGd) {
        return {};
    }
    Decodificacion d;
    d.Imagen = CopiaGd(imagenGd.get(), gd->width, gd->height);
    if (!d.Imagen.isNull()) {
        d.Estado = EstadoCarga::Leida;
        d.Ancho = ancho;
        d.Alto = alto;
    }
    return d;
}

#else // built without libwmf: every metafile of this kind is unreadable

bool HayDecodificadorWmf() {
    return false;
}

Decodificacion DecodificaWmf(const QByteArray &) {
    return {};
}

#endif
