#include "qt/VentanaAyuda.h"

#include <QApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "services/Ayuda.h"

namespace {

QPointer<VentanaAyuda> ventana;

QPushButton *Boton(const QString &texto, QWidget *padre) {
    auto *b = new QPushButton(texto, padre);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

// The window's owner: the modal form in use, else the main form.
QWidget *Dueno() {
    if (QWidget *modal = QApplication::activeModalWidget()) {
        return modal;
    }
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->objectName() == QLatin1String("teselari")) {
            return w;
        }
    }
    return nullptr;
}

} // namespace

QUrl DireccionTema(int16_t tema) {
    return QUrl(QStringLiteral("qrc:/teselari/ayuda/") +
                QString::fromStdString(DestinoAyuda(tema)));
}

VentanaAyuda::VentanaAyuda(QWidget *padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Teselari"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    Texto = new QTextBrowser(this);
    Texto->setOpenExternalLinks(false);
    Texto->setSearchPaths({QStringLiteral(":/teselari/ayuda")});
    Bot_Contenido = Boton(QStringLiteral("Contenido"), this);
    Bot_Atras = Boton(QStringLiteral("Atrás"), this);
    Bot_Adelante = Boton(QStringLiteral("Adelante"), this);
    Bot_Cerrar = Boton(QStringLiteral("Cerrar"), this);
    Bot_Atras->setEnabled(false);
    Bot_Adelante->setEnabled(false);

    auto *fila = new QHBoxLayout;
    fila->addWidget(Bot_Contenido);
    fila->addWidget(Bot_Atras);
    fila->addWidget(Bot_Adelante);
    fila->addStretch(1);
    fila->addWidget(Bot_Cerrar);
    auto *columna = new QVBoxLayout(this);
    columna->addLayout(fila);
    columna->addWidget(Texto, 1);

    connect(Bot_Contenido, &QPushButton::clicked, this,
            [this] { Texto->setSource(DireccionTema(TemasAyuda::Contenido)); });
    connect(Bot_Atras, &QPushButton::clicked, Texto, &QTextBrowser::backward);
    connect(Bot_Adelante, &QPushButton::clicked, Texto, &QTextBrowser::forward);
    connect(Bot_Cerrar, &QPushButton::clicked, this, &QWidget::close);
    connect(Texto, &QTextBrowser::backwardAvailable, Bot_Atras, &QWidget::setEnabled);
    connect(Texto, &QTextBrowser::forwardAvailable, Bot_Adelante, &QWidget::setEnabled);

    // Beside the always-visible panel, over the right half of the screen.
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    const int ancho = std::min(620, pantalla.width() - 40);
    const int alto = std::min(680, pantalla.height() - 40);
    setGeometry(pantalla.right() - ancho - 150, pantalla.top() + 30, ancho, alto);
}

void VentanaAyuda::MuestraTema(int16_t tema) {
    Texto->setSource(DireccionTema(tema));
    show();
    raise();
    activateWindow();
}

void VentanaAyuda::keyPressEvent(QKeyEvent *evento) {
    if (evento->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(evento);
    }
}

void MuestraVentanaAyuda(int16_t tema) {
    QWidget *dueno = Dueno();
    if (ventana.isNull()) {
        ventana = new VentanaAyuda(dueno);
    } else if (ventana->parentWidget() != dueno) {
        const QRect lugar = ventana->geometry();
        ventana->setParent(dueno, Qt::Window);
        ventana->setGeometry(lugar);
    }
    ventana->MuestraTema(tema);
}

VentanaAyuda *VentanaAyudaAbierta() {
    return ventana.data();
}
