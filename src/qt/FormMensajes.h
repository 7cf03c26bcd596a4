// FormMensajes: the form `mensajes`, the one modal message of the game.
//
// A borderless dialog 400 pixels wide and 16 x lines + 135 high, centred on
// the screen, that draws its own raised border and the sunken frames of its
// title and text. It answers with the image buttons "Aceptar" and
// "Rechazar", or has the single "Salir"; any key closes it, and in a
// two-button message every key means "Aceptar".
#pragma once

#include <QDialog>
#include <cstdint>
#include <string>

#include "core/Controles.h"

class QLabel;
class VistaSuperficie;

class FormMensajes : public QDialog {
    Q_OBJECT
  public:
    // Loads the form for MensajeLineas lines and MensajeBotones buttons.
    FormMensajes(const std::string &titulo, const std::string &texto, QWidget *padre = nullptr);

    // True when the message was closed by "Aceptar" (or by a key in a
    // two-button message).
    bool Respuesta() const { return respuesta_; }

    QLabel *Tex_Titulo = nullptr;
    QLabel *Tex_Mensaje = nullptr;
    VistaSuperficie *Pic_Si = nullptr;
    VistaSuperficie *Pic_No = nullptr;
    VistaSuperficie *Pic_Salir = nullptr;

    // The pixels of the form's own face: background, border and frames.
    const Superficie &Fondo() const { return fondo_; }

  protected:
    void paintEvent(QPaintEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

  private:
    VistaSuperficie *CreaBoton(CuadroImagen &s, int16_t imagen, int x, int y);
    void DibujaMarcos();
    void Cierra(bool acepta, bool conSonido);
    void Boton_MouseMove(VistaSuperficie *boton);

    int16_t lineas_;
    int16_t botones_;
    bool respuesta_ = false;
    Superficie fondo_;
    CuadroImagen si_, no_, salir_;
};

// The hook of MuestraMensaje: shows the form modally and returns the answer.
bool MuestraFormMensajes(const std::string &titulo, const std::string &texto);

// Text with the game's line ends (CR LF) as Qt shows it.
QString TextoDeMensaje(const std::string &texto);
