// VentanaAbrirFic: the customisation dialog `AbrirFic` on the screen.
//
// A borderless modal dialog, 640 x 480, at the place the form's Left and Top
// give. Its surfaces are VistaSuperficie widgets (framed where the form says
// so); the drive list is a drop-down list, the folder, file and grid lists
// are list boxes, the push buttons, option buttons and labels are Qt's own,
// and the two red marks are outlines that let the mouse through. Every event
// runs the form's handler and then mirrors the whole state back onto the
// widgets; when a handler has unloaded the form the dialog closes.
//
// In what's-this mode a press on any control shows that control's help
// topic instead of acting; F1 shows the topic of the control under the mouse.
// Escape and the window manager cannot close it: only Pic_Si and Pic_No can.
#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "core/Plataforma.h"

class FormAbrirFic;
class QComboBox;
class QListWidget;
class QPushButton;
class QRadioButton;
class QLabel;
class VistaSuperficie;
struct ControlDialogo;
struct SuperficieDialogo;
class ListaDialogo;

class VentanaAbrirFic : public QDialog {
    Q_OBJECT
  public:
    explicit VentanaAbrirFic(FormAbrirFic &form, QWidget *padre = nullptr);
    ~VentanaAbrirFic() override;

    // Mirrors every control of the form onto its widget.
    void Sincroniza();

    // Runs a handler of the form unless what's-this mode takes the press,
    // then mirrors the state it left, and closes the dialog once unloaded.
    void Atiende(const std::function<void()> &manejador);

    // The widget of a control by its name ("File1", "Pic_TipPuz(3)"...), or
    // null; a surface of the form by its object.
    QWidget *Control(const std::string &nombre) const;

    FormAbrirFic &Form() { return form_; }
    VistaSuperficie *VistaDe(const SuperficieDialogo &s) const;

    // Escape and the window's close come here: only an unloaded form closes.
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    struct Enlace; // a control and its widget
    void Construye();
    VistaSuperficie *Vista(SuperficieDialogo &s, const std::string &nombre);
    QWidget *PadreDe(const std::string &padre) const;
    void Registra(QWidget *w, ControlDialogo *c, const std::string &nombre);
    void ConectaSuperficies();
    void ConectaListas();
    void ConectaBotones();
    void SincronizaControl(QWidget *w, const ControlDialogo &c);
    void SincronizaListas();
    void SincronizaLista(QListWidget *w, const ListaDialogo &l);
    void PonIconosCarpetas();
    void SincronizaCursorQueEs();
    int16_t TemaBajoRaton(bool queEs) const;

    FormAbrirFic &form_;
    std::vector<Enlace *> enlaces_;
    QComboBox *drive1_ = nullptr;
    QListWidget *dir1_ = nullptr;
    QListWidget *file1_ = nullptr;
    QListWidget *lisNroPiezas_ = nullptr;
    bool sincronizando_ = false;
    bool cursorQueEs_ = false;
};

// The platform's part of the dialog: shown modally, its strip of small
// images, the clipboard's bitmap and the mounted volumes.
ServiciosDialogo ServiciosDialogoQt();
