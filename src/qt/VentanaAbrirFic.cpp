// VentanaAbrirFic: building the widgets, linking each to its control, and
// finding the one from the other.
#include "qt/VentanaAbrirFic.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>

#include "dialog/FormAbrirFic.h"
#include "qt/RotuladorQt.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"

namespace {

// The red marks of the chosen shape and colour: an outline the mouse goes
// through.
class MarcaRectangulo : public QWidget {
  public:
    MarcaRectangulo(const RectanguloDialogo &r, QWidget *padre) : QWidget(padre), r_(r) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

  protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        const QColor color = QColor::fromRgb(APixel(r_.BorderColor));
        const int g = r_.BorderWidth;
        p.fillRect(0, 0, width(), g, color);
        p.fillRect(0, height() - g, width(), g, color);
        p.fillRect(0, 0, g, height(), color);
        p.fillRect(width() - g, 0, g, height(), color);
    }

  private:
    const RectanguloDialogo &r_;
};

// The option buttons' mark stands close to its caption, as on the form the
// dialog was drawn for: "Siempre visible" then fits its 92 pixels.
class EstiloOpciones : public QProxyStyle {
  public:
    int pixelMetric(PixelMetric m, const QStyleOption *o, const QWidget *w) const override {
        return m == PM_RadioButtonLabelSpacing ? 3 : QProxyStyle::pixelMetric(m, o, w);
    }
};

QStyle *EstiloDeOpciones() {
    static auto *estilo = new EstiloOpciones;
    return estilo;
}

} // namespace

VentanaAbrirFic::VentanaAbrirFic(FormAbrirFic &form, QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::FramelessWindowHint), form_(form) {
    setModal(true);
    setWindowTitle(QStringLiteral("Personalizar la aplicación"));
    setFixedSize(640, 480);
    Construye();
    ConectaSuperficies();
    ConectaListas();
    ConectaBotones();
    // A refresh of the form reaches the screen at once, also in the middle
    // of a handler whose pauses let no event through (the attraction test).
    form_.AlRefrescar = [this] {
        Sincroniza();
        if (isVisible()) {
            repaint();
        }
    };
    Sincroniza();
}

VentanaAbrirFic::~VentanaAbrirFic() {
    form_.AlRefrescar = nullptr;
    for (ListaDialogo *l :
         {static_cast<ListaDialogo *>(&form_.Drive1), static_cast<ListaDialogo *>(&form_.Dir1),
          static_cast<ListaDialogo *>(&form_.File1), &form_.Lis_NroPiezas}) {
        l->AlCambiar = nullptr;
    }
    if (cursorQueEs_) {
        QApplication::restoreOverrideCursor();
    }
}

// --- links between controls and widgets --------------------------------------

void VentanaAbrirFic::Enlaza(QWidget *w, const EstadoControl &c, std::function<void()> refleja) {
    enlaces_.push_back({w, &c, std::move(refleja)});
    widgetDe_[&c] = w;
    controlDe_[w] = &c;
    porNombre_[c.Nombre] = w;
    w->installEventFilter(this);
    w->setMouseTracking(true);
}

QWidget *VentanaAbrirFic::Control(const std::string &nombre) const {
    const auto it = porNombre_.find(nombre);
    return it != porNombre_.end() ? it->second : nullptr;
}

QWidget *VentanaAbrirFic::WidgetDe(const EstadoControl &control) const {
    const auto it = widgetDe_.find(&control);
    return it != widgetDe_.end() ? it->second : nullptr;
}

VistaSuperficie *VentanaAbrirFic::VistaDe(const CuadroImagen &s) const {
    return qobject_cast<VistaSuperficie *>(WidgetDe(s));
}

const EstadoControl *VentanaAbrirFic::ControlDe(const QWidget *w) const {
    const auto it = controlDe_.find(w);
    return it != controlDe_.end() ? it->second : nullptr;
}

// A control's parent is made before it; an empty parent is the form.
QWidget *VentanaAbrirFic::PadreDe(const EstadoControl &c) const {
    QWidget *w = c.Padre.empty() ? nullptr : Control(c.Padre);
    return w != nullptr ? w : const_cast<VentanaAbrirFic *>(this);
}

VistaSuperficie *VentanaAbrirFic::Vista(CuadroImagen &s) {
    auto *v = new VistaSuperficie(s, PadreDe(s));
    Enlaza(v, s, [v] { v->Sincroniza(); });
    return v;
}

// A widget of kind W for a control of kind C, mirrored by the common part,
// Enabled, and then by its own routine.
template <class W, class C>
W *VentanaAbrirFic::Crea(C &control, std::function<void(W *, const C &)> refleja) {
    auto *w = new W(PadreDe(control));
    Enlaza(w, control, [w, &control, refleja] {
        ReflejaComun(w, control);
        if (w->isEnabled() != control.Enabled) {
            w->setEnabled(control.Enabled);
        }
        if (refleja) {
            refleja(w, control);
        }
    });
    return w;
}

void VentanaAbrirFic::Boton(BotonDialogo &b) {
    Crea<QPushButton, BotonDialogo>(b, ReflejaBoton)->setFocusPolicy(Qt::NoFocus);
}

// The marks take no mouse: they mirror no Enabled.
void VentanaAbrirFic::Marca(RectanguloDialogo &r) {
    auto *marca = new MarcaRectangulo(r, PadreDe(r));
    Enlaza(marca, r, [marca, &r] {
        ReflejaComun(marca, r);
        marca->update();
    });
}

// --- building ----------------------------------------------------------------

// In the order the widgets stack, the first at the bottom.
void VentanaAbrirFic::Construye() {
    Vista(form_.Formulario);
    ConstruyeColumnaImagen();
    ConstruyeColumnaDerecha();
    ConstruyePaginaBotones();
}

void VentanaAbrirFic::ConstruyeColumnaImagen() {
    FormAbrirFic &f = form_;
    Vista(f.Pic_ImagenPuzz);
    drive1_ = Crea<QComboBox, ListaUnidades>(f.Drive1, nullptr);
    dir1_ = Crea<QListWidget, ListaCarpetas>(f.Dir1, nullptr);
    file1_ = Crea<QListWidget, ListaFicheros>(f.File1, nullptr);
    Boton(f.Bot_Portapapeles);
    for (CuadroImagen *s :
         {&f.Pic_Modelo, &f.Pic_Zoom, &f.Pic_PorcZoom, &f.Pic_DatosBmp, &f.Pic_TiposPuz}) {
        Vista(*s);
    }
    for (CuadroImagen &s : f.Pic_TipPuz) {
        Vista(s);
    }
    Marca(f.Rec_MarcaTip);
    Vista(f.Pic_Colorfon);
    for (CuadroImagen &s : f.Pic_ColFon) {
        Vista(s);
    }
    Marca(f.Rec_MarcaCol);
    for (CuadroImagen *s : {&f.Pic_FactorPegado, &f.Pic_PorcFactorPegado, &f.Pic_Prueba}) {
        Vista(*s);
    }
    Boton(f.Bot_Prueba);
    Vista(f.Pic_PruebaPeq);
}

void VentanaAbrirFic::ConstruyeColumnaDerecha() {
    FormAbrirFic &f = form_;
    Boton(f.Bot_Botones);
    Boton(f.Bot_QueEs);
    Vista(f.Pic_NroPiezas);
    lisNroPiezas_ = Crea<QListWidget, ListaDialogo>(f.Lis_NroPiezas, nullptr);
    for (CuadroImagen *s : {&f.Pic_Cronometro, &f.Pic_Sonido, &f.Pic_Pistas, &f.Pic_Velocidad,
                            &f.Pic_PorcVelocidad, &f.Pic_No, &f.Pic_Si, &f.Pic_LugarBotones}) {
        Vista(*s);
    }
}

void VentanaAbrirFic::ConstruyePaginaBotones() {
    FormAbrirFic &f = form_;
    for (size_t i = 1; i < f.Picture2.size(); ++i) {
        Vista(f.Picture2[i]);
        Crea<QLabel, EtiquetaDialogo>(f.Lab_Botones[i], ReflejaEtiqueta)
            ->setAutoFillBackground(true);
        Vista(f.Pic_BotLugBot[i]);
        for (OpcionDialogo *opcion : {&f.Opt_Siempre[i], &f.Opt_Derecho[i]}) {
            auto *w = Crea<QRadioButton, OpcionDialogo>(*opcion, ReflejaOpcion);
            w->setStyle(EstiloDeOpciones());
            w->setAutoExclusive(false);
            w->setFocusPolicy(Qt::NoFocus);
        }
    }
    Vista(f.Pic_SalirPicBotones);
}

// --- help ----------------------------------------------------------------------

// The topic of the control under the mouse, or of the nearest control that
// holds it and has one.
int16_t VentanaAbrirFic::TemaBajoRaton(bool queEs) const {
    for (QWidget *p = QApplication::widgetAt(QCursor::pos()); p != nullptr && p != this;
         p = p->parentWidget()) {
        if (const EstadoControl *c = ControlDe(p)) {
            const int16_t tema = queEs ? c->WhatsThisHelpID : c->HelpContextID;
            if (tema != 0) {
                return tema;
            }
        }
    }
    return TemasAyuda::Personalizar;
}

void VentanaAbrirFic::keyPressEvent(QKeyEvent *evento) {
    if (evento->key() == Qt::Key_F1) {
        MuestraAyuda(TemaBajoRaton(false));
        return;
    }
    // Escape does not close the dialog; the other keys go to the focused list.
    if (evento->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(evento);
    }
}

void VentanaAbrirFic::reject() {
    // Only Pic_Si and Pic_No close the dialog.
    if (form_.Descargado()) {
        QDialog::reject();
    }
}
