// Enhanced metafiles: libemf2svg turns the records into SVG, which Qt SVG
// draws over white. The size is the one the header states in its device
// bounds, both corners included; the library's SVG counts one pixel less,
// so it is drawn through a view box of the whole size, at one to one.
#include "qt/Decodificadores.h"

#ifdef TESELARI_CON_EMF

#include <emf2svg.h>

#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>
#include <memory>

namespace {

constexpr uint32_t EMR_HEADER = 1, EMR_EOF = 14;
constexpr uint32_t FIRMA_EMF = 0x464D4520; // " EMF"
constexpr qsizetype CABECERA_MINIMA = 88;

uint32_t Palabra(const QByteArray &b, qsizetype desde) {
    uint32_t v = 0;
    for (int i = 3; i >= 0; --i) {
        v = (v << 8) | static_cast<uint8_t>(b[desde + i]);
    }
    return v;
}

// Whether every record lies within the file the header measures, each at
// least a type and a size long and word aligned, and the last is the end.
bool RegistrosEnteros(const QByteArray &datos) {
    if (datos.size() < CABECERA_MINIMA || Palabra(datos, 0) != EMR_HEADER ||
        Palabra(datos, 40) != FIRMA_EMF) {
        return false;
    }
    const int64_t total = Palabra(datos, 48);
    if (total > datos.size() || total < CABECERA_MINIMA) {
        return false;
    }
    int64_t pos = 0;
    uint32_t tipo = 0;
    while (pos + 8 <= total) {
        tipo = Palabra(datos, pos);
        const int64_t largo = Palabra(datos, pos + 4);
        if (largo < 8 || largo % 4 != 0 || pos + largo > total) {
            return false;
        }
        pos += largo;
    }
    return pos == total && tipo == EMR_EOF;
}

QImage DibujaSvg(const char *svg, size_t largo, int ancho, int alto, QSize tamano) {
    QSvgRenderer dibujante(QByteArray(svg, static_cast<qsizetype>(largo)));
    if (!dibujante.isValid()) {
        return {};
    }
    QImage imagen(tamano, QImage::Format_RGB32);
    if (imagen.isNull()) {
        return {};
    }
    imagen.fill(Qt::white);
    dibujante.setViewBox(QRectF(0, 0, ancho, alto));
    QPainter pintor(&imagen);
    dibujante.render(&pintor, QRectF(0, 0, tamano.width(), tamano.height()));
    return imagen;
}

} // namespace

bool HayDecodificadorEmf() {
    return true;
}

Decodificacion DecodificaEmf(const QByteArray &datos) {
    if (datos.size() < CABECERA_MINIMA) {
        return {};
    }
    const int64_t ancho = int64_t{static_cast<int32_t>(Palabra(datos, 16))} -
                          static_cast<int32_t>(Palabra(datos, 8)) + 1;
    const int64_t alto = int64_t{static_cast<int32_t>(Palabra(datos, 20))} -
                         static_cast<int32_t>(Palabra(datos, 12)) + 1;
    if (ancho <= 0 || alto <= 0) {
        return {};
    }
    if (TamanoDesmesurado(ancho, alto)) {
        return {EstadoCarga::Desmesurada, ancho, alto, {}};
    }
    if (!RegistrosEnteros(datos)) {
        return {};
    }
    QByteArray copia = datos; // the library wants a writable buffer
    char *svg = nullptr;
    size_t largo = 0;
    generatorOptions opciones{};
    opciones.nameSpace = nullptr;
    opciones.emfplus = true;
    opciones.svgDelimiter = true;
    const int bien =
        emf2svg(copia.data(), static_cast<size_t>(copia.size()), &svg, &largo, &opciones);
    std::unique_ptr<char, decltype(&std::free)> guarda(svg, &std::free);
    if (bien == 0 || svg == nullptr) {
        return {};
    }
    Decodificacion d;
    // Drawn straight at the size it is decoded at, over the whole view box.
    const QSize tamano = TamanoDecodificado(ancho, alto);
    d.Imagen = DibujaSvg(svg, largo, static_cast<int>(ancho), static_cast<int>(alto), tamano);
    if (!d.Imagen.isNull()) {
        d.Estado = EstadoCarga::Leida;
        d.Ancho = ancho;
        d.Alto = alto;
    }
    return d;
}

#else // built without libemf2svg or Qt SVG: every enhanced metafile is unreadable

bool HayDecodificadorEmf() {
    return false;
}

Decodificacion DecodificaEmf(const QByteArray &) {
    return {};
}

#endif
