#include "qt/VentanaCareta.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include "qt/Arranque.h"
#include "qt/ImagenQt.h"
#include "qt/VistaSuperficie.h"

VentanaCareta::VentanaCareta(QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("careta"));
    setWindowTitle(QStringLiteral("careta"));
    setModal(true);
    setFocusPolicy(Qt::StrongFocus);
    QPalette p = palette();
    p.setColor(QPalette::Window, Qt::black);
    setPalette(p);
    setAutoFillBackground(true);

    CargaRecurso(QStringLiteral(":/teselari/careta/logo.png"), form_.Pic_Logo);
    CargaRecurso(QStringLiteral(":/teselari/careta/icono.png"), form_.Pic_Icono);
    CargaRecurso(QStringLiteral(":/teselari/careta/texto.png"), form_.Pic_Bmp);
    // Maximised: without a window manager the geometry must be the screen's
    // before the window is shown.
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    setGeometry(pantalla);
    form_.Form_Load(pantalla.width(), pantalla.height());

    Pic_Todos = new VistaSuperficie(form_.Pic_Todos, this);
    Pic_Careta = new VistaSuperficie(form_.Pic_Careta, Pic_Todos);
    for (VistaSuperficie *v : {Pic_Todos, Pic_Careta}) {
        v->setFocusPolicy(Qt::NoFocus);
        v->setMouseTracking(false);
    }
}

void VentanaCareta::showEvent(QShowEvent *evento) {
    QDialog::showEvent(evento);
    activateWindow();
    setFocus(Qt::ActiveWindowFocusReason);
    // The frames run from the window's own event loop, once it stands.
    if (!activada_) {
        activada_ = true;
        QTimer::singleShot(0, this, [this] { Activa(); });
    }
}

void VentanaCareta::Activa() {
    form_.Form_Activate();
    accept();
}

void VentanaCareta::keyPressEvent(QKeyEvent *evento) {
    evento->accept();
    if (!evento->isAutoRepeat()) {
        form_.Pic_Careta_KeyDown(static_cast<int16_t>(evento->key() & 0x7FFF), 0);
    }
}

void MuestraCareta(VentanaCareta &careta) {
    careta.exec();
}
