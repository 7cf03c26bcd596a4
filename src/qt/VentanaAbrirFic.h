// VentanaAbrirFic: the customisation dialog `AbrirFic` on the screen.
//
// A borderless modal dialog, 640 x 480, at the place the form's Left and Top
// give. Its picture boxes are VistaSuperficie widgets (framed where the form
// says so); the drive list is a drop-down list, the folder, file and grid
// lists are list boxes, the push buttons, option buttons and labels are
// Qt's own, and the two red marks are outlines that let the mouse through.
// Every event runs the form's handler and then mirrors the whole state back
// onto the widgets; when a handler has unloaded the form the dialog closes.
//
// The widgets are made once, when the window is built, and each is linked
// to its control: the window finds one from the other through maps, and
// keeps, for every link, the routine that mirrors that control.
//
// In what's-this mode a press on any control shows that control's help
// topic instead of acting; F1 shows the topic of the control under the mouse.
// Escape and the window manager cannot close it: only Pic_Si and Pic_No can.
// The source is split by topic: building and finding the widgets
// (VentanaAbrirFic.cpp), the player's events (VentanaAbrirFicEventos.cpp)
// and the mirroring (VentanaAbrirFicEspejo.cpp).
#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/Plataforma.h"

class FormAbrirFic;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QSinglePointEvent;
class VistaSuperficie;
struct EstadoControl;
struct ControlConTamano;
class CuadroImagen;
class ListaDialogo;
struct BotonDialogo;
struct RectanguloDialogo;
struct OpcionDialogo;
struct EtiquetaDialogo;

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
    // null.
    QWidget *Control(const std::string &nombre) const;
    // The widget of a control of the form, or null.
    QWidget *WidgetDe(const EstadoControl &control) const;
    VistaSuperficie *VistaDe(const CuadroImagen &s) const;

    FormAbrirFic &Form() { return form_; }

    // Escape and the window's close come here: only an unloaded form closes.
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    // A control and its widget, with the routine that mirrors the one onto
    // the other.
    struct Enlace {
        QWidget *widget = nullptr;
        const EstadoControl *control = nullptr;
        std::function<void()> refleja;
    };

    // --- building (VentanaAbrirFic.cpp) ---
    void Construye();
    void ConstruyeColumnaImagen();
    void ConstruyeColumnaDerecha();
    void ConstruyePaginaBotones();
    VistaSuperficie *Vista(CuadroImagen &s);
    template <class W, class C> W *Crea(C &control, std::function<void(W *, const C &)> refleja);
    void Boton(BotonDialogo &b);
    void Marca(RectanguloDialogo &r);
    void Enlaza(QWidget *w, const EstadoControl &c, std::function<void()> refleja);
    QWidget *PadreDe(const EstadoControl &c) const;
    const EstadoControl *ControlDe(const QWidget *w) const;
    int16_t TemaBajoRaton(bool queEs) const;

    // --- events (VentanaAbrirFicEventos.cpp) ---
    void ConectaSuperficies();
    void ConectaLista(QListWidget *w, ListaDialogo &l);
    void ConectaListas();
    void ConectaBotones();
    bool AtiendeQueEs(QWidget *w);

    // --- mirroring (VentanaAbrirFicEspejo.cpp) ---
    static void ReflejaComun(QWidget *w, const ControlConTamano &c);
    static void ReflejaBoton(QPushButton *w, const BotonDialogo &b);
    static void ReflejaOpcion(QRadioButton *w, const OpcionDialogo &o);
    static void ReflejaEtiqueta(QLabel *w, const EtiquetaDialogo &e);
    void SincronizaListas();
    void SincronizaLista(QListWidget *w, const ListaDialogo &l);
    void PonIconosCarpetas();
    void SincronizaCursorQueEs();

    FormAbrirFic &form_;
    std::vector<Enlace> enlaces_; // in the order the widgets were made
    std::unordered_map<const EstadoControl *, QWidget *> widgetDe_;
    std::unordered_map<const QWidget *, const EstadoControl *> controlDe_;
    std::unordered_map<std::string, QWidget *> porNombre_;
    // What a move over a widget other than a picture box runs: the pointing
    // hand of a button or a list, the move handler of File1.
    std::unordered_map<const QObject *, std::function<void(const QSinglePointEvent &)>> alMover_;
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
