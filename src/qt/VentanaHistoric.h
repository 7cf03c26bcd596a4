// VentanaHistoric: the history book `Historic` on the screen.
//
// A modal dialog with a fixed single border and a title, 541 x 344 inside
// it, at the place the form's Left and Top give (centred on the screen). Its
// own image, the two patches over the tabs and the two patches of labels are
// VistaSuperficie widgets; Tex_Nombre is a line edit that takes no double
// quote and no line break, so a name cannot break the history file. Every
// event runs the form's handler and then mirrors the whole state back onto
// the widgets; when a handler has unloaded the form the dialog closes. The
// desktop's close button closes it as well; Escape does not. F1 shows the
// book's help topic.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "core/Plataforma.h"

class FormHistoric;
class QLineEdit;
class VistaSuperficie;

class VentanaHistoric : public QDialog {
    Q_OBJECT
  public:
    explicit VentanaHistoric(FormHistoric &form, QWidget *padre = nullptr);
    ~VentanaHistoric() override;

    // Mirrors every control of the form onto its widget.
    void Sincroniza();

    // Runs a handler of the form, mirrors the state it left, and closes the
    // dialog once the form is unloaded.
    void Atiende(const std::function<void()> &manejador);

    FormHistoric &Form() { return form_; }
    QLineEdit *TexNombre() const { return texNombre_; }
    VistaSuperficie *VistaFormulario() const { return formulario_; }
    VistaSuperficie *VistaTapa(int i) const { return tapas_[static_cast<size_t>(i)]; }

  protected:
    void keyPressEvent(QKeyEvent *evento) override;

  private:
    FormHistoric &form_;
    VistaSuperficie *formulario_ = nullptr;
    std::array<VistaSuperficie *, 3> tapas_{};
    VistaSuperficie *parche1_ = nullptr;
    VistaSuperficie *parche2_ = nullptr;
    QLineEdit *texNombre_ = nullptr;
};

// The platform's part of the book: shown modally, its two bitmaps from the
// resources.
ServiciosHistorico ServiciosHistoricoQt();
