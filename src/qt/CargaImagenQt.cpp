#include "qt/CargaImagenQt.h"

#include "qt/ImagenQt.h"

#include <QFile>
#include <QFileInfo>
#include <cstring>

#include "qt/Decodificadores.h"
#include "raster/Superficie.h"

namespace {

// JPEG and metafiles are read whole; a longer file is not a picture the
// game could hold.
constexpr int64_t BYTES_MAXIMOS = PIXELES_MAXIMOS * 4;

Decodificacion Decodifica(QFile &f) {
    const QByteArray cabecera = f.peek(64);
    const ClaseImagen clase = ClaseDeContenido(cabecera);
    if (clase == ClaseImagen::Bmp) {
        return DecodificaBmp(f, f.size());
    }
    if (clase == ClaseImagen::Otra || f.size() > BYTES_MAXIMOS) {
        return {};
    }
    const QByteArray datos = f.readAll();
    switch (clase) {
    case ClaseImagen::Jpeg:
        return DecodificaJpeg(datos);
    case ClaseImagen::Wmf:
        return DecodificaWmf(datos);
    case ClaseImagen::Emf:
        return DecodificaEmf(datos);
    default:
        return {};
    }
}

} // namespace

CargaDeImagen CargaImagenQt(const std::string &fichero, Superficie &destino) {
    const QString nombre = QString::fromStdString(fichero);
    QFile f(nombre);
    if (!QFileInfo(nombre).isFile() || !f.open(QIODevice::ReadOnly)) {
        DejaImagenEnBlanco(destino);
        return {EstadoCarga::Inexistente, 320, 240};
    }
    const Decodificacion d = Decodifica(f);
    if (d.Estado == EstadoCarga::Leida) {
        CopiaEnSuperficie(d.Imagen, destino);
        return {d.Estado, d.Ancho, d.Alto};
    }
    DejaImagenEnBlanco(destino);
    if (d.Estado == EstadoCarga::Desmesurada) {
        return {d.Estado, d.Ancho, d.Alto};
    }
    return {EstadoCarga::EnBlanco, 320, 240};
}
