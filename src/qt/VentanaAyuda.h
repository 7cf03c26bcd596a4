// VentanaAyuda: the window of the help book.
//
// The book is a set of Spanish HTML pages among the resources
// (":/teselari/ayuda/"), shown in a QTextBrowser with the buttons
// "Contenido", "Atrás", "Adelante" and "Cerrar" (also the Escape key). It
// isn't modal: the game goes on behind it. A topic number opens its page at
// its anchor; 0 and an unknown number open the contents.
#pragma once

#include <QWidget>
#include <cstdint>

class QPushButton;
class QTextBrowser;

class VentanaAyuda : public QWidget {
    Q_OBJECT
  public:
    explicit VentanaAyuda(QWidget *padre = nullptr);

    // Shows the page of the topic and brings the window to the front.
    void MuestraTema(int16_t tema);

    QTextBrowser *Texto = nullptr;
    QPushButton *Bot_Contenido = nullptr;
    QPushButton *Bot_Atras = nullptr;
    QPushButton *Bot_Adelante = nullptr;
    QPushButton *Bot_Cerrar = nullptr;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;
};

// The address of a topic in the resources, e.g.
// "qrc:/teselari/ayuda/personalizar.html#t1231".
QUrl DireccionTema(int16_t tema);

// The hook of MuestraAyuda: one window for the whole run, created at the
// first call. When a modal form is open the window becomes its child, so
// that the form doesn't block it (and closes with it).
void MuestraVentanaAyuda(int16_t tema);

// The window of the last call, or nullptr if none is open.
VentanaAyuda *VentanaAyudaAbierta();
