// VistaSuperficie: a widget that shows a picture box on the screen.
//
// The widget paints the surface's rows as they are, without a copy, and
// stands where the control's Left and Top say, at its surface's size, with
// the control's visibility, Enabled, pointer and tooltip. It watches the
// surface: every drawing operation on it is repainted at once, without the
// event loop, so a deal or an automatic move is seen while it runs. Mouse
// events go to the handlers in the game's terms: button 1 left, 2 right,
// 4 middle, Shift 1 / Ctrl 2 / Alt 4, and surface pixel coordinates.
//
// A picture box may carry the platform's sunken frame (Borde), two pixels
// wide: the
// widget keeps the surface's size, which is then the outer size, the frame
// takes its outer two rows and columns, and the surface's pixels, its mouse
// coordinates and its child controls start inside the frame (the last four
// columns and rows of the surface are not seen).
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "core/Controles.h"

class VistaSuperficie : public QWidget {
    Q_OBJECT
  public:
    using Manejador = std::function<void(int16_t boton, int16_t shift, float x, float y)>;

    VistaSuperficie(CuadroImagen &cuadro, QWidget *padre = nullptr);
    ~VistaSuperficie() override;

    CuadroImagen &Control() { return cuadro_; }

    // The width of the sunken frame: 0 (flat) or 2.
    int Borde() const { return borde_; }

    // Mirrors the control (place, size, frame, visibility, Enabled, pointer
    // and tooltip) onto the widget, and watches the surface again if it was
    // replaced.
    void Sincroniza();

    Manejador AlPulsar; // MouseDown
    Manejador AlMover;  // MouseMove
    Manejador AlSoltar; // MouseUp

    // Runs before a drawing on the surface is repainted, so that the form
    // can first mirror what else the game has changed meanwhile (a panel
    // hidden over the spot, say).
    std::function<void()> AntesDeRepintar;

  protected:
    void paintEvent(QPaintEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

  private:
    void Vigila();
    void DibujaBorde(QPainter &p);
    QPointF Punto(const QMouseEvent *evento) const;
    void SincronizaLugar();

    CuadroImagen &cuadro_;
    int borde_ = 0;
    int16_t puntero_ = -1;
    std::string icono_;
};

// The game's number of one mouse button, and of the buttons held.
int16_t BotonDeRaton(Qt::MouseButton boton);
// The width of the frame of a widget's client area when it is a framed
// surface, else 0: where the children of that widget start.
int BordeDe(const QWidget *w);
int16_t BotonesDeRaton(Qt::MouseButtons botones);
// The game's Shift argument: Shift 1, Ctrl 2, Alt 4.
int16_t TeclasDeRaton(Qt::KeyboardModifiers teclas);
