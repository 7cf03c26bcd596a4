#include "Escritura.h"

#include <QDir>
#include <QFile>

#include "CaretaArte.h"
#include "Cronometro.h"
#include "Cursores.h"
#include "Iconos.h"
#include "Libro.h"
#include "Muestras.h"
#include "Sonidos.h"
#include "Varios.h"

namespace {

bool Guarda(const QImage &img, const QString &ruta, const char *formato, int calidad,
            std::ostream &informe) {
    const bool bien = img.save(ruta, formato, calidad);
    informe << (bien ? "written " : "FAILED ") << ruta.toStdString() << '\n';
    return bien;
}

} // namespace

bool EscribeActivos(const QString &carpeta, bool conMuestras, std::ostream &informe) {
    QDir raiz(carpeta);
    bool bien = raiz.mkpath("cursores") && raiz.mkpath("sonidos") && raiz.mkpath("muestras");
    bien = Guarda(GeneraTiraBotones(), raiz.filePath("botones.png"), "PNG", -1, informe) && bien;
    bien = Guarda(GeneraCronometro(), raiz.filePath("cronometro.png"), "PNG", -1, informe) && bien;
    bien = Guarda(GeneraTiraVarios(), raiz.filePath("varios.png"), "PNG", -1, informe) && bien;
    bien = raiz.mkpath("libro") && bien;
    bien =
        Guarda(GeneraPaginaLibro(), raiz.filePath("libro/pagina.png"), "PNG", -1, informe) && bien;
    bien =
        Guarda(GeneraEtiquetasLibro(), raiz.filePath("libro/etiquetas.png"), "PNG", -1, informe) &&
        bien;
    const struct {
        const char *nombre;
        QImage imagen;
    } cursores[] = {{"manoblanca", GeneraManoAbierta(Qt::white)},
                    {"manoindice", GeneraManoIndice()},
                    {"manoroja", GeneraManoAbierta(QColor(225, 25, 25))},
                    {"manoverde", GeneraManoAbierta(QColor(20, 175, 40))}};
    for (const auto &c : cursores) {
        bien = Guarda(c.imagen, raiz.filePath(QString("cursores/%1.png").arg(c.nombre)), "PNG", -1,
                      informe) &&
               bien;
    }
    for (int clip = 1; clip <= NumeroClips; ++clip) {
        QFile f(raiz.filePath(QString("sonidos/%1.wav").arg(clip)));
        const QByteArray wav = GeneraWav(clip);
        const bool escrito = f.open(QIODevice::WriteOnly) && f.write(wav) == wav.size();
        informe << (escrito ? "written " : "FAILED ") << f.fileName().toStdString() << '\n';
        bien = escrito && bien;
    }
    bien = EscribeCaretaEIconos(raiz, informe) && bien;
    if (conMuestras) {
        for (const Muestra &m : ListaMuestras()) {
            const bool bmp = m.Nombre.endsWith(".BMP");
            const QImage img = m.Genera().convertToFormat(QImage::Format_RGB888);
            bien = Guarda(img, raiz.filePath("muestras/" + m.Nombre), bmp ? "BMP" : "JPG",
                          bmp ? -1 : 90, informe) &&
                   bien;
        }
    }
    return bien;
}
