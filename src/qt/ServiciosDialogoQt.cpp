// What the customisation dialog asks of the desktop: to be shown modally,
// its strip of small images, the clipboard's bitmap, the mounted volumes.
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QStorageInfo>
#include <algorithm>

#include "dialog/FormAbrirFic.h"
#include "dialog/ServiciosDialogo.h"
#include "qt/Arranque.h"
#include "qt/CargaImagenQt.h"
#include "qt/ImagenQt.h"
#include "qt/VentanaAbrirFic.h"

namespace {

void MuestraModal(FormAbrirFic &dialogo) {
    VentanaAbrirFic ventana(dialogo, QApplication::activeWindow());
    if (!dialogo.Descargado()) {
        ventana.exec();
    }
}

void CargaTira(Superficie &tira) {
    tira.CambiaTamano(318, 24);
    CargaRecurso(QStringLiteral(":/teselari/varios.png"), tira);
}

QImage ImagenPortapapeles() {
    const QClipboard *portapapeles = QGuiApplication::clipboard();
    return portapapeles != nullptr ? portapapeles->image() : QImage();
}

bool HayImagenPortapapeles() {
    return !ImagenPortapapeles().isNull();
}

// The bitmap at its own size, opaque.
bool TomaImagenPortapapeles(Superficie &destino) {
    QImage imagen = ImagenPortapapeles();
    if (imagen.isNull()) {
        return false;
    }
    CopiaEnSuperficie(imagen, destino);
    return true;
}

// The volumes a player can keep pictures on: real devices, mounted and
// readable, by mount point; the root always among them.
std::vector<std::string> Unidades() {
    std::vector<std::string> unidades{"/"};
    for (const QStorageInfo &v : QStorageInfo::mountedVolumes()) {
        if (!v.isValid() || !v.isReady() || !v.device().startsWith("/dev/")) {
            continue;
        }
        const std::string raiz = v.rootPath().toStdString();
        if (std::find(unidades.begin(), unidades.end(), raiz) == unidades.end()) {
            unidades.push_back(raiz);
        }
    }
    std::sort(unidades.begin() + 1, unidades.end());
    return unidades;
}

} // namespace

ServiciosDialogo ServiciosDialogoQt() {
    ServiciosDialogo s;
    s.MuestraModal = MuestraModal;
    s.CargaTira = CargaTira;
    s.HayImagenPortapapeles = HayImagenPortapapeles;
    s.TomaImagenPortapapeles = TomaImagenPortapapeles;
    s.Unidades = Unidades;
    return s;
}
