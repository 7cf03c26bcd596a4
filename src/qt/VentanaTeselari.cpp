#include "qt/VentanaTeselari.h"

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>

#include "core/PuzzGbl.h"
#include "qt/Cursores.h"
#include "qt/ReflejaControl.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"

using namespace PuzzGbl;

VentanaTeselari::VentanaTeselari(QWidget *padre)
    : QWidget(padre, Qt::Window | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("teselari"));
    setWindowTitle(QStringLiteral("Teselari"));
    setFocusPolicy(Qt::StrongFocus);
    FormTeselari &f = teselari;

    // From the bottom up: the work area, the bars and their corner, the
    // panels, the chronometer, and the pop-up panel over everything.
    Pic_Trabajo = new VistaSuperficie(f.Pic_Trabajo, this);
    Pic_Muestra = new VistaSuperficie(f.Pic_Muestra, Pic_Trabajo);
    BarraHor = new QScrollBar(Qt::Horizontal, this);
    BarraVer = new QScrollBar(Qt::Vertical, this);
    Pic_Cuadrito = new VistaSuperficie(f.Pic_Cuadrito, this);
    Pic_BotonesSiempre = new VistaSuperficie(f.Pic_BotonesSiempre, this);
    Pic_BSInfo = new VistaSuperficie(f.Pic_BSInfo, Pic_BotonesSiempre);
    Pic_Cronome = new VistaSuperficie(f.Pic_Cronome, this);
    Pic_BotonesDerecho = new VistaSuperficie(f.Pic_BotonesDerecho, this);
    for (int i = 1; i <= 11; ++i) {
        Pic_BotonSiempre[i] = new VistaSuperficie(f.Pic_BotonSiempre[i], Pic_BotonesSiempre);
        Pic_BotonDerecho[i] = new VistaSuperficie(f.Pic_BotonDerecho[i], Pic_BotonesDerecho);
    }

    // A drawing reaches the screen at once, without the event loop: what
    // the game changed before it (a control hidden or moved) goes first, or
    // the spot would still show it.
    for (VistaSuperficie *v : findChildren<VistaSuperficie *>()) {
        v->AntesDeRepintar = [this] {
            if (!sincronizando_) {
                Sincroniza();
            }
        };
    }

    connect(BarraHor, &QScrollBar::valueChanged, this,
            [this](int v) { Barra_Change(teselari.BarraHor, v); });
    connect(BarraVer, &QScrollBar::valueChanged, this,
            [this](int v) { Barra_Change(teselari.BarraVer, v); });

    Timer1.setInterval(1000);
    Sincroniza();
}

void VentanaTeselari::Barra_Change(BarraDesplazamiento &estado, int valor) {
    if (sincronizando_) {
        return;
    }
    Atiende([&] { estado.PonValue(valor); });
}

void VentanaTeselari::Atiende(const std::function<void()> &manejador) {
    manejador();
    Sincroniza();
}

void VentanaTeselari::SincronizaBarra(QScrollBar *barra, const BarraDesplazamiento &estado) {
    ReflejaLugar(barra, estado);
    if (barra->minimum() != estado.Min() || barra->maximum() != estado.Max()) {
        barra->setRange(estado.Min(), estado.Max());
    }
    barra->setPageStep(estado.LargeChange);
    barra->setSingleStep(estado.SmallChange);
    if (barra->value() != estado.Value()) {
        barra->setValue(estado.Value());
    }
}

void VentanaTeselari::Sincroniza() {
    sincronizando_ = true;
    FormTeselari &f = teselari;
    SincronizaBarra(BarraHor, f.BarraHor);
    SincronizaBarra(BarraVer, f.BarraVer);
    for (VistaSuperficie *v : {Pic_Trabajo, Pic_Muestra, Pic_Cuadrito, Pic_BotonesSiempre,
                               Pic_BSInfo, Pic_Cronome, Pic_BotonesDerecho}) {
        v->Sincroniza();
    }
    for (int i = 1; i <= 11; ++i) {
        Pic_BotonSiempre[i]->Sincroniza();
        Pic_BotonDerecho[i]->Sincroniza();
    }
    AplicaPunteroPantalla(f.MousePointer);
    sincronizando_ = false;
}

void VentanaTeselari::MuestraPantallaCompleta() {
    // Without a window manager a full-screen request keeps the default
    // size: the geometry is the screen's before the window is shown.
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    setGeometry(pantalla);
    Sincroniza();
    show();
    raise();
    activateWindow();
}

int16_t VentanaTeselari::TemaAyuda(const QWidget *control) const {
    for (const QWidget *w = control; w != nullptr && w != this; w = w->parentWidget()) {
        if (w == Pic_BSInfo) {
            return TemasAyuda::PiezasColocadas;
        }
        if (w == Pic_BotonesSiempre) {
            return TemasAyuda::BotonesSiempre;
        }
        if (w == Pic_Cronome) {
            return TemasAyuda::PanelCronometro;
        }
    }
    return TemasAyuda::Tablero;
}

void VentanaTeselari::keyPressEvent(QKeyEvent *evento) {
    if (evento->key() == Qt::Key_F1) {
        // The controls take no focus: the one under the mouse tells the topic.
        const int16_t tema = TemaAyuda(QApplication::widgetAt(QCursor::pos()));
        Atiende([tema] { MuestraAyuda(tema); });
    } else if (AlPulsarTecla) {
        const int tecla = evento->key();
        Atiende([&] { AlPulsarTecla(tecla); });
    } else {
        QWidget::keyPressEvent(evento);
    }
}
