#include "Imagenes.h"

#include <QImageReader>
#include <QImageWriter>
#include <cstring>
#include <filesystem>

QImage ImagenDeSuperficie(const Superficie &s) {
    if (s.Ancho() <= 0 || s.Alto() <= 0) {
        return QImage();
    }
    const QImage vista(reinterpret_cast<const uchar *>(s.Pixeles().data()), s.Ancho(), s.Alto(),
                       static_cast<qsizetype>(s.Ancho()) * 4, QImage::Format_RGB32);
    return vista.copy();
}

bool EscribePng(const Superficie &s, const std::string &ruta, std::string &error) {
    const QImage imagen = ImagenDeSuperficie(s);
    if (imagen.isNull()) {
        error = "the surface has no pixels (" + std::to_string(s.Ancho()) + "x" +
                std::to_string(s.Alto()) + ")";
        return false;
    }
    QImageWriter escritor(QString::fromStdString(ruta), "png");
    if (!escritor.write(imagen)) {
        error = escritor.errorString().toStdString();
        return false;
    }
    return true;
}

std::optional<QImage> LeeImagen(const std::string &ruta, std::string &error) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(ruta, ec)) {
        error = "no such picture file: " + ruta;
        return std::nullopt;
    }
    QImageReader lector(QString::fromStdString(ruta));
    lector.setAutoTransform(true);
    QImage imagen = lector.read();
    if (imagen.isNull()) {
        error = "cannot read the picture " + ruta + ": " + lector.errorString().toStdString();
        return std::nullopt;
    }
    return imagen;
}
