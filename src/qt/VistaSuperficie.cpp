#include "qt/VistaSuperficie.h"

#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "qt/Cursores.h"

VistaSuperficie::VistaSuperficie(CuadroImagen &cuadro, QWidget *padre)
    : QWidget(padre), cuadro_(cuadro) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setMouseTracking(true);
    Vigila();
    Sincroniza();
}

VistaSuperficie::~VistaSuperficie() {
    cuadro_.AlCambiar = nullptr;
}

void VistaSuperficie::Vigila() {
    cuadro_.AlCambiar = [this](const Rectangulo &r) {
        // A surface resized or moved by the logic shows its new place before
        // the drawing that follows is seen.
        if (AntesDeRepintar) {
            AntesDeRepintar();
        }
        SincronizaLugar();
        if (isVisible() && !r.Vacio()) {
            repaint(QRect(r.Izquierda + borde_, r.Arriba + borde_, r.Ancho(), r.Alto()));
        }
    };
}

int BordeDe(const QWidget *w) {
    const auto *vista = qobject_cast<const VistaSuperficie *>(w);
    return vista != nullptr ? vista->Borde() : 0;
}

void VistaSuperficie::SincronizaLugar() {
    const int borde = cuadro_.Borde ? 2 : 0;
    if (borde != borde_) {
        borde_ = borde;
        update();
    }
    // Inside a framed parent the place counts from the frame's inner edge.
    const int dentro = BordeDe(parentWidget());
    const QRect lugar(cuadro_.Left + dentro, cuadro_.Top + dentro, cuadro_.Ancho(), cuadro_.Alto());
    if (geometry() != lugar) {
        setGeometry(lugar);
    }
    if (isHidden() == cuadro_.Visible) {
        setVisible(cuadro_.Visible);
        // A surface shown again is seen at once, even when no event runs
        // before the next pause (the blink of the attraction test).
        if (cuadro_.Visible && isVisible()) {
            repaint();
        }
    }
}

void VistaSuperficie::Sincroniza() {
    if (!cuadro_.AlCambiar) {
        Vigila();
    }
    SincronizaLugar();
    if (puntero_ != cuadro_.MousePointer || icono_ != cuadro_.MouseIcon) {
        puntero_ = cuadro_.MousePointer;
        icono_ = cuadro_.MouseIcon;
        setCursor(CursorDePuntero(puntero_, icono_));
    }
    const QString pista = QString::fromStdString(cuadro_.ToolTipText);
    if (toolTip() != pista) {
        setToolTip(pista);
    }
    if (isEnabled() != cuadro_.Enabled) {
        setEnabled(cuadro_.Enabled);
    }
}

void VistaSuperficie::paintEvent(QPaintEvent *evento) {
    QPainter p(this);
    if (borde_ > 0) {
        DibujaBorde(p);
        p.translate(borde_, borde_);
        p.setClipRect(0, 0, width() - 2 * borde_, height() - 2 * borde_);
    }
    const int ancho = cuadro_.Ancho();
    const int alto = cuadro_.Alto();
    const QRect pedido = evento->rect().translated(-borde_, -borde_);
    if (ancho <= 0 || alto <= 0) {
        p.fillRect(pedido, Qt::white);
        return;
    }
    // The rows of the surface are 0xFFRRGGBB words: an RGB32 image over them
    // without a copy.
    const QImage imagen(reinterpret_cast<const uchar *>(cuadro_.Fila(0)), ancho, alto,
                        static_cast<qsizetype>(ancho) * 4, QImage::Format_RGB32);
    const QRect zona = pedido & QRect(0, 0, ancho, alto);
    p.drawImage(zona.topLeft(), imagen, zona);
    // A widget larger than its surface (for a moment, before Sincroniza)
    // shows white beyond it.
    const QRegion resto =
        (QRegion(pedido) & QRegion(0, 0, width() - 2 * borde_, height() - 2 * borde_)) -
        QRegion(0, 0, ancho, alto);
    for (const QRect &r : resto) {
        p.fillRect(r, Qt::white);
    }
}

// The sunken frame: dark grey and black above and left, white and light
// grey below and right, each line one pixel.
void VistaSuperficie::DibujaBorde(QPainter &p) {
    const int w = width(), h = height();
    p.setPen(QColor(0x80, 0x80, 0x80));
    p.drawLine(0, 0, w - 2, 0);
    p.drawLine(0, 0, 0, h - 2);
    p.setPen(Qt::white);
    p.drawLine(0, h - 1, w - 1, h - 1);
    p.drawLine(w - 1, 0, w - 1, h - 1);
    if (borde_ > 1) {
        p.setPen(Qt::black);
        p.drawLine(1, 1, w - 3, 1);
        p.drawLine(1, 1, 1, h - 3);
        p.setPen(QColor(0xC0, 0xC0, 0xC0));
        p.drawLine(1, h - 2, w - 2, h - 2);
        p.drawLine(w - 2, 1, w - 2, h - 2);
    }
}

QPointF VistaSuperficie::Punto(const QMouseEvent *evento) const {
    return evento->position() - QPointF(borde_, borde_);
}

int16_t BotonDeRaton(Qt::MouseButton boton) {
    switch (boton) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

int16_t BotonesDeRaton(Qt::MouseButtons botones) {
    int16_t b = 0;
    if (botones & Qt::LeftButton) {
        b |= 1;
    }
    if (botones & Qt::RightButton) {
        b |= 2;
    }
    if (botones & Qt::MiddleButton) {
        b |= 4;
    }
    return b;
}

int16_t TeclasDeRaton(Qt::KeyboardModifiers teclas) {
    int16_t t = 0;
    if (teclas & Qt::ShiftModifier) {
        t |= 1;
    }
    if (teclas & Qt::ControlModifier) {
        t |= 2;
    }
    if (teclas & Qt::AltModifier) {
        t |= 4;
    }
    return t;
}

void VistaSuperficie::mousePressEvent(QMouseEvent *evento) {
    const int16_t boton = BotonDeRaton(evento->button());
    if (AlPulsar && boton != 0) {
        const QPointF p = Punto(evento);
        AlPulsar(boton, TeclasDeRaton(evento->modifiers()), static_cast<float>(p.x()),
                 static_cast<float>(p.y()));
    }
}

void VistaSuperficie::mouseMoveEvent(QMouseEvent *evento) {
    if (AlMover) {
        const QPointF p = Punto(evento);
        AlMover(BotonesDeRaton(evento->buttons()), TeclasDeRaton(evento->modifiers()),
                static_cast<float>(p.x()), static_cast<float>(p.y()));
    }
}

void VistaSuperficie::mouseReleaseEvent(QMouseEvent *evento) {
    const int16_t boton = BotonDeRaton(evento->button());
    if (AlSoltar && boton != 0) {
        const QPointF p = Punto(evento);
        AlSoltar(boton, TeclasDeRaton(evento->modifiers()), static_cast<float>(p.x()),
                 static_cast<float>(p.y()));
    }
}
