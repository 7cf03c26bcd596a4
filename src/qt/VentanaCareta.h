// VentanaCareta: the splash `careta` on the screen.
//
// A borderless black window over the whole screen, with the panel Pic_Todos
// centred and the viewport Pic_Careta inside it, both VistaSuperficie
// widgets over the surfaces of FormCareta. Once shown it runs the form's
// frames and closes itself when they end. Every key goes to the form; the
// mouse and the window's close do nothing.
#pragma once

#include <QDialog>

#include "services/Careta.h"

class VistaSuperficie;

class VentanaCareta : public QDialog {
    Q_OBJECT
  public:
    // Fills the three source pictures from the resources and loads the form
    // for the primary screen.
    explicit VentanaCareta(QWidget *padre = nullptr);

    FormCareta &Form() { return form_; }
    VistaSuperficie *Pic_Todos = nullptr;
    VistaSuperficie *Pic_Careta = nullptr;

    // The window's close and Escape: nothing but the end of the frames
    // closes it.
    void reject() override {}

  protected:
    void showEvent(QShowEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

  private:
    void Activa();

    FormCareta form_;
    bool activada_ = false;
};

// Shows the splash modally; returns when it has ended. The window stays
// loaded until the caller destroys it.
void MuestraCareta(VentanaCareta &careta);
