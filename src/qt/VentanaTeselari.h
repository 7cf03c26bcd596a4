// VentanaTeselari: the main form `teselari` on the screen.
//
// A window without frame that covers the whole screen, so that its client
// coordinates are screen pixels. Its controls are the surfaces of
// FormTeselari, shown by VistaSuperficie widgets, and two scroll bars. The
// work area Pic_Trabajo lies at the bottom and may be larger than the
// screen: the scroll bars move it, with the model Pic_Muestra that is its
// child; the bars, the corner square, the panels and the chronometer stand
// above it.
//
// The game logic changes its controls as plain state; Sincroniza() mirrors
// that state onto the widgets, and runs after every event handler.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>

class QScrollBar;
class VistaSuperficie;
class BarraDesplazamiento;

class VentanaTeselari : public QWidget {
    Q_OBJECT
  public:
    explicit VentanaTeselari(QWidget *padre = nullptr);

    // Positions, sizes, visibility, pointers, tooltips, scroll ranges and
    // values, and the hourglass of the whole screen.
    void Sincroniza();

    // Covers the screen: the geometry is set before the window is shown.
    void MuestraPantallaCompleta();

    // Runs an event handler of the game, then mirrors the state it left.
    void Atiende(const std::function<void()> &manejador);

    VistaSuperficie *Pic_Trabajo = nullptr;
    VistaSuperficie *Pic_Muestra = nullptr;
    VistaSuperficie *Pic_Cuadrito = nullptr;
    VistaSuperficie *Pic_BotonesSiempre = nullptr;
    VistaSuperficie *Pic_BSInfo = nullptr;
    VistaSuperficie *Pic_BotonesDerecho = nullptr;
    VistaSuperficie *Pic_Cronome = nullptr;
    std::array<VistaSuperficie *, 12> Pic_BotonSiempre{}; // 1..11
    std::array<VistaSuperficie *, 12> Pic_BotonDerecho{}; // 1..11
    QScrollBar *BarraHor = nullptr;
    QScrollBar *BarraVer = nullptr;
    // Ticks every second while the clock runs (Timer1_Timer).
    QTimer Timer1;

    // Key presses of the form, for the handlers that want them. F1 doesn't
    // reach them: it opens the help book.
    std::function<void(int tecla)> AlPulsarTecla;

    // The help number of a control of the form, for F1: the count of placed
    // pieces 1290, the always-visible panel and its buttons 1210, the
    // chronometer 1280, the form, the board and everything else 1120.
    int16_t TemaAyuda(const QWidget *control) const;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;

  private:
    void SincronizaBarra(QScrollBar *barra, const BarraDesplazamiento &estado);
    void Barra_Change(BarraDesplazamiento &estado, int valor);

    bool sincronizando_ = false;
};
