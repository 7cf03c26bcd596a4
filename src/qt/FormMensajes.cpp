#include "qt/FormMensajes.h"

#include <QApplication>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <cmath>

#include "core/PuzzGbl.h"
#include "qt/Cursores.h"
#include "qt/ImagenQt.h"
#include "qt/RotuladorQt.h"
#include "qt/VistaSuperficie.h"
#include "raster/Raster.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

constexpr int ANCHO_FORM = 400;
constexpr Color GRIS_FORM = 0xC0C0C0;
constexpr Color GRIS_OSCURO = 0x808080;
constexpr Color AZUL_TITULO = 0x800000; // dark blue, 0x00BBGGRR
constexpr int LADO_BOTON = 56;
// Images of the strip Pic_BmpBoton for this form.
constexpr int16_t IMAGEN_SALIR = 11;
constexpr int16_t IMAGEN_RECHAZAR = 12;
constexpr int16_t IMAGEN_ACEPTAR = 13;

// A line two pixels wide: the given one and its neighbour towards the
// inside of the form (below a top edge, right of a left edge, and so on).
void LineaDoble(Superficie &s, int x1, int y1, int x2, int y2, int dx, int dy, Color c) {
    s.Line(x1, y1, x2, y2, c);
    s.Line(x1 + dx, y1 + dy, x2 + dx, y2 + dy, c);
}

// A button surface: grey face inside a sunken edge two pixels wide, the
// image 3 pixels into the face.
void DibujaBoton(CuadroImagen &s, int16_t imagen) {
    s = CuadroImagen(LADO_BOTON, LADO_BOTON, GRIS_FORM);
    const int f = LADO_BOTON - 1;
    s.Line(0, 0, f, 0, GRIS_OSCURO);
    s.Line(0, 0, 0, f, GRIS_OSCURO);
    s.Line(1, 1, f - 1, 1, COLOR_NEGRO);
    s.Line(1, 1, 1, f - 1, COLOR_NEGRO);
    s.Line(f, 0, f, f + 1, COLOR_BLANCO);
    s.Line(0, f, f, f, COLOR_BLANCO);
    s.Line(f - 1, 1, f - 1, f, GRIS_FORM);
    s.Line(1, f - 1, f - 1, f - 1, GRIS_FORM);
    BitBlt(s, 5, 5, 48, 48, teselari.Pic_BmpBoton, (imagen - 1) * 49 + 1, 1, SRCCOPY);
}

// The pointer of the screen, in the main form's state and on the screen.
void PonPunteroPantalla(int16_t puntero) {
    teselari.MousePointer = puntero;
    AplicaPunteroPantalla(puntero);
}

} // namespace

QString TextoDeMensaje(const std::string &texto) {
    QString t = QString::fromStdString(texto);
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return t;
}

FormMensajes::FormMensajes(const std::string &titulo, const std::string &texto, QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::FramelessWindowHint), lineas_(MensajeLineas),
      botones_(MensajeBotones) {
    setObjectName(QStringLiteral("mensajes"));
    // The title names the window for the desktop as well.
    setWindowTitle(QString::fromStdString(titulo));
    setModal(true);
    setFocusPolicy(Qt::StrongFocus);
    PonPunteroPantalla(PUNTERO_NORMAL);

    const int alto = 16 * lineas_ + 135;
    setFixedSize(ANCHO_FORM, alto);
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    // Centred; a half pixel goes to the even side, as every rounding does.
    const auto centra = [](int libre) { return static_cast<int>(std::nearbyint(libre / 2.0)); };
    move(pantalla.x() + centra(pantalla.width() - ANCHO_FORM),
         pantalla.y() + centra(pantalla.height() - alto));

    Tex_Titulo = new QLabel(TextoDeMensaje(titulo), this);
    Tex_Titulo->setGeometry(20, 15, 365, 22);
    Fuente negrita{"MS Sans Serif", 12.0, true};
    Tex_Titulo->setFont(FuenteQt(negrita));
    Tex_Mensaje = new QLabel(TextoDeMensaje(texto), this);
    Tex_Mensaje->setGeometry(20, 50, 365, 16 * lineas_ + 3);
    Tex_Mensaje->setFont(FuenteQt(Fuente{"MS Sans Serif", 9.75, false}));
    Tex_Mensaje->setWordWrap(true);
    for (QLabel *l : {Tex_Titulo, Tex_Mensaje}) {
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        l->setAutoFillBackground(true);
        QPalette p = l->palette();
        p.setColor(QPalette::Window, ColorQt(GRIS_FORM));
        p.setColor(QPalette::WindowText, ColorQt(l == Tex_Titulo ? AZUL_TITULO : COLOR_NEGRO));
        l->setPalette(p);
    }

    fondo_ = Superficie(ANCHO_FORM, alto, GRIS_FORM);
    DibujaMarcos();

    // The buttons stand below the text's lines of 16 pixels.
    const int abajo = 50 + 16 * lineas_;
    if (botones_ == 1) {
        Pic_Salir = CreaBoton(salir_, IMAGEN_SALIR, ANCHO_FORM - LADO_BOTON - 15, abajo + 15);
        Pic_Salir->AlSoltar = [this](int16_t b, int16_t, float, float) {
            if (b == 1 && botones_ == 1) {
                Cierra(false, true);
            }
        };
    } else {
        Pic_No = CreaBoton(no_, IMAGEN_RECHAZAR, 250, abajo + 13);
        Pic_Si = CreaBoton(si_, IMAGEN_ACEPTAR, 100, abajo + 13);
        Pic_Si->AlSoltar = [this](int16_t b, int16_t, float, float) {
            if (b == 1) {
                Cierra(true, true);
            }
        };
        Pic_No->AlSoltar = [this](int16_t b, int16_t, float, float) {
            if (b == 1) {
                Cierra(false, true);
            }
        };
    }
    if (Pistas == 1) {
        si_.ToolTipText = "Aceptar";
        no_.ToolTipText = "Rechazar";
        salir_.ToolTipText = "Salir";
    }
    for (VistaSuperficie *boton : {Pic_Si, Pic_No, Pic_Salir}) {
        if (boton != nullptr) {
            boton->Sincroniza();
        }
    }
}

VistaSuperficie *FormMensajes::CreaBoton(CuadroImagen &s, int16_t imagen, int x, int y) {
    DibujaBoton(s, imagen);
    s.Move(x, y);
    auto *boton = new VistaSuperficie(s, this);
    boton->AlMover = [this, boton](int16_t, int16_t, float, float) { Boton_MouseMove(boton); };
    return boton;
}

void FormMensajes::Boton_MouseMove(VistaSuperficie *boton) {
    if (boton->Control().MousePointer == PUNTERO_NORMAL) {
        PonCursor(boton->Control(), "ManoIndice");
        boton->Sincroniza();
    }
}

void FormMensajes::DibujaMarcos() {
    Superficie &s = fondo_;
    const int sw = s.Ancho();
    const int sh = s.Alto();
    // The raised border, two pixels wide.
    LineaDoble(s, 1, 1, sw - 1, 1, 0, -1, COLOR_BLANCO);
    LineaDoble(s, 1, 1, 1, sh - 1, -1, 0, COLOR_BLANCO);
    LineaDoble(s, sw - 1, sh - 1, sw - 1, 1, -1, 0, GRIS_OSCURO);
    LineaDoble(s, sw - 1, sh - 1, 1, sh - 1, 0, -1, GRIS_OSCURO);
    // The sunken frames of the title and the text.
    for (QLabel *l : {Tex_Titulo, Tex_Mensaje}) {
        const int x = l->x();
        const int y = l->y();
        const int w = l->width();
        const int h = l->height();
        s.Line(x - 6, y - 1, x + w, y - 1, GRIS_OSCURO);
        s.Line(x - 6, y - 1, x - 6, y + h, GRIS_OSCURO);
        s.Line(x + w, y + h, x + w, y, COLOR_BLANCO);
        s.Line(x + w, y + h, x - 5, y + h, COLOR_BLANCO);
    }
}

void FormMensajes::paintEvent(QPaintEvent *) {
    QPainter p(this);
    const QImage imagen(reinterpret_cast<const uchar *>(fondo_.Fila(0)), fondo_.Ancho(),
                        fondo_.Alto(), static_cast<qsizetype>(fondo_.Ancho()) * 4,
                        QImage::Format_RGB32);
    p.drawImage(0, 0, imagen);
}

void FormMensajes::showEvent(QShowEvent *evento) {
    QDialog::showEvent(evento);
    setFocus(Qt::ActiveWindowFocusReason);
}

void FormMensajes::keyPressEvent(QKeyEvent *evento) {
    evento->accept();
    if (botones_ == 1) {
        Cierra(false, false);
    } else {
        Cierra(true, true);
    }
}

void FormMensajes::Cierra(bool acepta, bool conSonido) {
    PonPunteroPantalla(PUNTERO_ESPERA);
    if (conSonido) {
        ReproduceSonido(Clips::SalidaDialogo);
    }
    respuesta_ = acepta;
    done(acepta ? QDialog::Accepted : QDialog::Rejected);
    PonPunteroPantalla(PUNTERO_NORMAL);
}

bool MuestraFormMensajes(const std::string &titulo, const std::string &texto) {
    FormMensajes mensajes(titulo, texto, QApplication::activeWindow());
    mensajes.exec();
    return mensajes.Respuesta();
}
