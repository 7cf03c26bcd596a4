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
#include <QStyle>

#include "dialog/FormAbrirFic.h"
#include "qt/Cursores.h"
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
        const QColor color(r_.BorderColor & 0xFF, (r_.BorderColor >> 8) & 0xFF,
                           (r_.BorderColor >> 16) & 0xFF);
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

QColor ColorQt(Color c) {
    return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

// The face stands in for one narrower than itself: a caption that would not
// fit its control at the form's size is set a pixel smaller at a time, down
// to 8 pixels, rather than cut off.
void AjustaLetra(QWidget *w, const Fuente &letra, const QString &texto, int margen) {
    QFont fuente = FuenteQt(letra);
    // Widgets' text is never read back: smoothing keeps small sizes legible.
    fuente.setStyleStrategy(QFont::PreferDefault);
    const int disponible = w->width() - margen;
    while (fuente.pixelSize() > 8 && QFontMetrics(fuente).horizontalAdvance(texto) > disponible) {
        fuente.setPixelSize(fuente.pixelSize() - 1);
    }
    if (w->font() != fuente) {
        w->setFont(fuente);
    }
}

std::string ConIndice(const char *nombre, size_t i) {
    return std::string(nombre) + "(" + std::to_string(i) + ")";
}

} // namespace

struct VentanaAbrirFic::Enlace {
    std::string nombre;
    QWidget *w = nullptr;
    ControlDialogo *c = nullptr;    // a control other than a surface
    SuperficieDialogo *s = nullptr; // a surface
    VistaSuperficie *v = nullptr;   // its view
    int16_t Tema() const { return c != nullptr ? c->WhatsThisHelpID : s->WhatsThisHelpID; }
    int16_t Ayuda() const { return c != nullptr ? c->HelpContextID : s->HelpContextID; }
};

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
    for (Enlace *e : enlaces_) {
        delete e;
    }
}

QWidget *VentanaAbrirFic::Control(const std::string &nombre) const {
    for (const Enlace *e : enlaces_) {
        if (e->nombre == nombre) {
            return e->w;
        }
    }
    return nullptr;
}

VistaSuperficie *VentanaAbrirFic::VistaDe(const SuperficieDialogo &s) const {
    for (const Enlace *e : enlaces_) {
        if (e->s == &s) {
            return e->v;
        }
    }
    return nullptr;
}

QWidget *VentanaAbrirFic::PadreDe(const std::string &padre) const {
    QWidget *w = padre.empty() ? nullptr : Control(padre);
    return w != nullptr ? w : const_cast<VentanaAbrirFic *>(this);
}

void VentanaAbrirFic::Registra(QWidget *w, ControlDialogo *c, const std::string &nombre) {
    auto *e = new Enlace{c->Nombre.empty() ? nombre : c->Nombre, w, c, nullptr, nullptr};
    enlaces_.push_back(e);
    w->installEventFilter(this);
    w->setMouseTracking(true);
}

VistaSuperficie *VentanaAbrirFic::Vista(SuperficieDialogo &s, const std::string &nombre) {
    auto *v = new VistaSuperficie(s, PadreDe(s.Padre));
    v->PonBorde(s.Borde ? 2 : 0);
    auto *e = new Enlace{s.Nombre.empty() ? nombre : s.Nombre, v, nullptr, &s, v};
    enlaces_.push_back(e);
    v->installEventFilter(this);
    return v;
}

void VentanaAbrirFic::Construye() {
    FormAbrirFic &f = form_;
    Vista(f.Formulario, "AbrirFic")->PonBorde(0);
    Vista(f.Pic_ImagenPuzz, "");
    drive1_ = new QComboBox(PadreDe(f.Drive1.Padre));
    Registra(drive1_, &f.Drive1, "Drive1");
    dir1_ = new QListWidget(PadreDe(f.Dir1.Padre));
    Registra(dir1_, &f.Dir1, "Dir1");
    file1_ = new QListWidget(PadreDe(f.File1.Padre));
    Registra(file1_, &f.File1, "File1");
    auto boton = [this](BotonDialogo &b, const char *nombre) {
        auto *w = new QPushButton(PadreDe(b.Padre));
        w->setFont(FuenteQt(b.Letra));
        w->setFocusPolicy(Qt::NoFocus);
        Registra(w, &b, nombre);
        return w;
    };
    boton(f.Bot_Portapapeles, "Bot_Portapapeles");
    for (SuperficieDialogo *s :
         {&f.Pic_Modelo, &f.Pic_Zoom, &f.Pic_PorcZoom, &f.Pic_DatosBmp, &f.Pic_TiposPuz}) {
        Vista(*s, "");
    }
    for (size_t i = 0; i < f.Pic_TipPuz.size(); ++i) {
        Vista(f.Pic_TipPuz[i], ConIndice("Pic_TipPuz", i));
    }
    Registra(new MarcaRectangulo(f.Rec_MarcaTip, PadreDe(f.Rec_MarcaTip.Padre)), &f.Rec_MarcaTip,
             "Rec_MarcaTip");
    Vista(f.Pic_Colorfon, "");
    for (size_t i = 0; i < f.Pic_ColFon.size(); ++i) {
        Vista(f.Pic_ColFon[i], ConIndice("Pic_ColFon", i));
    }
    Registra(new MarcaRectangulo(f.Rec_MarcaCol, PadreDe(f.Rec_MarcaCol.Padre)), &f.Rec_MarcaCol,
             "Rec_MarcaCol");
    for (SuperficieDialogo *s : {&f.Pic_FactorPegado, &f.Pic_PorcFactorPegado, &f.Pic_Prueba}) {
        Vista(*s, "");
    }
    boton(f.Bot_Prueba, "Bot_Prueba");
    Vista(f.Pic_PruebaPeq, "");
    boton(f.Bot_Botones, "Bot_Botones");
    boton(f.Bot_QueEs, "Bot_QueEs");
    Vista(f.Pic_NroPiezas, "");
    lisNroPiezas_ = new QListWidget(PadreDe(f.Lis_NroPiezas.Padre));
    Registra(lisNroPiezas_, &f.Lis_NroPiezas, "Lis_NroPiezas");
    for (SuperficieDialogo *s : {&f.Pic_Cronometro, &f.Pic_Sonido, &f.Pic_Pistas, &f.Pic_Velocidad,
                                 &f.Pic_PorcVelocidad, &f.Pic_No, &f.Pic_Si, &f.Pic_LugarBotones}) {
        Vista(*s, "");
    }
    for (size_t i = 1; i < f.Picture2.size(); ++i) {
        Vista(f.Picture2[i], ConIndice("Picture2", i));
        auto *etiqueta = new QLabel(PadreDe(f.Lab_Botones[i].Padre));
        etiqueta->setFont(FuenteQt(f.Lab_Botones[i].Letra));
        etiqueta->setAutoFillBackground(true);
        Registra(etiqueta, &f.Lab_Botones[i], ConIndice("Lab_Botones", i));
        Vista(f.Pic_BotLugBot[i], ConIndice("Pic_BotLugBot", i));
        for (auto [opcion, nombre] : {std::pair{&f.Opt_Siempre[i], "Opt_Siempre"},
                                      std::pair{&f.Opt_Derecho[i], "Opt_Derecho"}}) {
            auto *w = new QRadioButton(PadreDe(opcion->Padre));
            w->setStyle(EstiloDeOpciones());
            w->setAutoExclusive(false);
            w->setFocusPolicy(Qt::NoFocus);
            Registra(w, opcion, ConIndice(nombre, i));
        }
    }
    Vista(f.Pic_SalirPicBotones, "");
}

// --- events -----------------------------------------------------------------

void VentanaAbrirFic::Atiende(const std::function<void()> &manejador) {
    manejador();
    if (form_.Descargado()) {
        if (isVisible()) {
            done(0);
        }
        return;
    }
    Sincroniza();
}

void VentanaAbrirFic::ConectaSuperficies() {
    FormAbrirFic &f = form_;
    using Manejador = void (FormAbrirFic::*)(int16_t, int16_t, float, float);
    auto enlaza = [this](SuperficieDialogo &s, Manejador pulsar, Manejador mover,
                         Manejador soltar) {
        VistaSuperficie *v = VistaDe(s);
        if (v == nullptr) {
            return;
        }
        auto llama = [this](Manejador m) -> VistaSuperficie::Manejador {
            if (m == nullptr) {
                return nullptr;
            }
            return [this, m](int16_t b, int16_t sh, float x, float y) {
                FormAbrirFic &f = form_;
                Atiende([&f, m, b, sh, x, y] { (f.*m)(b, sh, x, y); });
            };
        };
        v->AlPulsar = llama(pulsar);
        v->AlMover = llama(mover);
        v->AlSoltar = llama(soltar);
    };
    enlaza(f.Pic_Si, &FormAbrirFic::Pic_Si_MouseDown, nullptr, nullptr);
    enlaza(f.Pic_No, &FormAbrirFic::Pic_No_MouseDown, nullptr, nullptr);
    enlaza(f.Pic_FactorPegado, &FormAbrirFic::Pic_FactorPegado_MouseDown,
           &FormAbrirFic::Pic_FactorPegado_MouseMove, &FormAbrirFic::Pic_FactorPegado_MouseUp);
    enlaza(f.Pic_Velocidad, &FormAbrirFic::Pic_Velocidad_MouseDown,
           &FormAbrirFic::Pic_Velocidad_MouseMove, &FormAbrirFic::Pic_Velocidad_MouseUp);
    enlaza(f.Pic_Zoom, &FormAbrirFic::Pic_Zoom_MouseDown, &FormAbrirFic::Pic_Zoom_MouseMove,
           &FormAbrirFic::Pic_Zoom_MouseUp);
    enlaza(f.Pic_Cronometro, &FormAbrirFic::Pic_Cronometro_MouseDown,
           &FormAbrirFic::Pic_Cronometro_MouseMove, nullptr);
    enlaza(f.Pic_Sonido, &FormAbrirFic::Pic_Sonido_MouseDown, &FormAbrirFic::Pic_Sonido_MouseMove,
           nullptr);
    enlaza(f.Pic_Pistas, &FormAbrirFic::Pic_Pistas_MouseDown, &FormAbrirFic::Pic_Pistas_MouseMove,
           nullptr);
    // A click is a release over the control that took the press.
    auto clic = [this](SuperficieDialogo &s, std::function<void()> accion,
                       std::function<void(int16_t, int16_t, float, float)> mover) {
        VistaSuperficie *v = VistaDe(s);
        if (v == nullptr) {
            return;
        }
        v->AlSoltar = [this, &s, accion](int16_t, int16_t, float x, float y) {
            if (x >= 0 && y >= 0 && x < s.Ancho() && y < s.Alto()) {
                Atiende(accion);
            }
        };
        if (mover) {
            v->AlMover = [this, mover](int16_t b, int16_t sh, float x, float y) {
                Atiende([&mover = mover, b, sh, x, y] { mover(b, sh, x, y); });
            };
        }
    };
    for (int16_t i = 0; i < static_cast<int16_t>(f.Pic_TipPuz.size()); ++i) {
        clic(
            f.Pic_TipPuz[i], [&f, i] { f.Pic_TipPuz_Click(i); },
            [&f, i](int16_t b, int16_t sh, float x, float y) {
                f.Pic_TipPuz_MouseMove(i, b, sh, x, y);
            });
        clic(
            f.Pic_ColFon[i], [&f, i] { f.Pic_ColFon_Click(i); },
            [&f, i](int16_t b, int16_t sh, float x, float y) {
                f.Pic_ColFon_MouseMove(i, b, sh, x, y);
            });
    }
    clic(
        f.Pic_SalirPicBotones, [&f] { f.Pic_SalirPicBotones_Click(); },
        [&f](int16_t, int16_t, float, float) { f.PonManoSiNormal(f.Pic_SalirPicBotones); });
    for (SuperficieDialogo *s : {&f.Pic_Si, &f.Pic_No}) {
        VistaSuperficie *v = VistaDe(*s);
        if (v != nullptr) {
            v->AlMover = [this, s](int16_t, int16_t, float, float) {
                FormAbrirFic &form = form_;
                Atiende([&form, s] { form.PonManoSiNormal(*s); });
            };
        }
    }
}

void VentanaAbrirFic::ConectaListas() {
    FormAbrirFic &f = form_;
    for (ListaDialogo *l :
         {static_cast<ListaDialogo *>(&f.Drive1), static_cast<ListaDialogo *>(&f.Dir1),
          static_cast<ListaDialogo *>(&f.File1), &f.Lis_NroPiezas}) {
        l->AlCambiar = [this] {
            if (!sincronizando_) {
                SincronizaListas();
            }
        };
    }
    for (QListWidget *w : {dir1_, file1_, lisNroPiezas_}) {
        w->viewport()->installEventFilter(this);
        w->viewport()->setMouseTracking(true);
        w->setSelectionMode(QAbstractItemView::SingleSelection);
    }
    // The keys move the selection as a click does.
    auto teclas = [this](QListWidget *w, ListaDialogo &l) {
        connect(w, &QListWidget::currentRowChanged, this, [this, &l](int fila) {
            if (!sincronizando_ && fila != l.ListIndex() && &l != &form_.Dir1) {
                Atiende([&l, fila] { l.PonListIndex(fila); });
            }
        });
    };
    teclas(file1_, f.File1);
    teclas(lisNroPiezas_, f.Lis_NroPiezas);
    connect(drive1_, &QComboBox::activated, this, [this](int i) {
        if (!sincronizando_ && i >= 0 && i < form_.Drive1.ListCount()) {
            ListaUnidades &unidades = form_.Drive1;
            Atiende([&unidades, i] { unidades.PonDrive(unidades.List(i)); });
        }
    });
}

void VentanaAbrirFic::ConectaBotones() {
    FormAbrirFic &f = form_;
    auto pulsa = [this](const char *nombre, std::function<void()> accion) {
        auto *b = qobject_cast<QAbstractButton *>(Control(nombre));
        if (b != nullptr) {
            connect(b, &QAbstractButton::clicked, this, [this, accion] { Atiende(accion); });
        }
    };
    pulsa("Bot_Portapapeles", [&f] { f.Bot_Portapapeles_Click(); });
    pulsa("Bot_Prueba", [&f] { f.Bot_Prueba_Click(); });
    pulsa("Bot_Botones", [&f] { f.Bot_Botones_Click(); });
    pulsa("Bot_QueEs", [&f] { f.Bot_QueEs_Click(); });
    for (int16_t i = 1; i < static_cast<int16_t>(f.Opt_Siempre.size()); ++i) {
        pulsa(ConIndice("Opt_Siempre", i).c_str(), [&f, i] { f.Opt_Siempre_Click(i); });
        pulsa(ConIndice("Opt_Derecho", i).c_str(), [&f, i] { f.Opt_Derecho_Click(i); });
    }
}

// What's-this takes every press; the lists take their clicks here, so that
// a click on the chosen entry runs the click handler again as it does for
// the player; the controls that only want the pointing hand get it here.
bool VentanaAbrirFic::eventFilter(QObject *objeto, QEvent *evento) {
    const QEvent::Type tipo = evento->type();
    if ((tipo != QEvent::MouseButtonPress && tipo != QEvent::MouseButtonDblClick &&
         tipo != QEvent::MouseMove && tipo != QEvent::Enter) ||
        lisNroPiezas_ == nullptr) {
        return QDialog::eventFilter(objeto, evento);
    }
    auto *w = qobject_cast<QWidget *>(objeto);
    QWidget *control = w;
    if (w != nullptr &&
        (w == dir1_->viewport() || w == file1_->viewport() || w == lisNroPiezas_->viewport())) {
        control = w->parentWidget();
    }
    if (tipo == QEvent::MouseButtonPress && form_.ModoQueEs) {
        int16_t tema = 0;
        for (QWidget *p = control; p != nullptr && tema == 0; p = p->parentWidget()) {
            for (const Enlace *e : enlaces_) {
                if (e->w == p) {
                    tema = e->Tema();
                }
            }
        }
        Atiende([&] { form_.AtiendeQueEs(tema != 0 ? tema : TEMA_DIALOGO); });
        return true;
    }
    auto *lista = qobject_cast<QListWidget *>(control);
    if (lista != nullptr && control != w) {
        ListaDialogo &l = lista == dir1_    ? static_cast<ListaDialogo &>(form_.Dir1)
                          : lista == file1_ ? static_cast<ListaDialogo &>(form_.File1)
                                            : form_.Lis_NroPiezas;
        if (tipo == QEvent::Enter) {
            return false;
        }
        auto *raton = static_cast<QMouseEvent *>(evento);
        if (tipo == QEvent::MouseButtonPress && raton->button() == Qt::LeftButton) {
            const int fila = lista->indexAt(raton->position().toPoint()).row();
            if (fila >= 0 && lista != dir1_) {
                Atiende([&] {
                    if (fila != l.ListIndex()) {
                        l.PonListIndex(fila);
                    } else if (l.Click) {
                        l.Click();
                    }
                });
            } else if (fila >= 0) {
                sincronizando_ = true;
                lista->setCurrentRow(fila);
                sincronizando_ = false;
            }
            return true;
        }
        if (tipo == QEvent::MouseButtonDblClick) {
            const int fila = lista->indexAt(raton->position().toPoint()).row();
            if (fila >= 0 && lista == dir1_) {
                Atiende([&] { form_.Dir1.Abre(fila); });
            } else if (fila >= 0 && lista == file1_ && form_.File1.DblClick) {
                Atiende([&] { form_.File1.DblClick(); });
            }
            return true;
        }
        if (tipo == QEvent::MouseMove) {
            if (lista == file1_) {
                const QPointF p = raton->position();
                Atiende([&] {
                    form_.File1_MouseMove(BotonesDeRaton(raton->buttons()),
                                          TeclasDeRaton(raton->modifiers()),
                                          static_cast<float>(p.x()), static_cast<float>(p.y()));
                });
            } else {
                Atiende([&] { form_.PonManoSiNormal(static_cast<ControlDialogo &>(l)); });
            }
        }
        return false;
    }
    if (tipo == QEvent::MouseMove || tipo == QEvent::Enter) {
        for (Enlace *e : enlaces_) {
            if (e->w == w && e->c != nullptr && e->c != &form_.Drive1 &&
                qobject_cast<QAbstractButton *>(w) != nullptr) {
                Atiende([&] { form_.PonManoSiNormal(*e->c); });
                break;
            }
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

int16_t VentanaAbrirFic::TemaBajoRaton(bool queEs) const {
    for (QWidget *p = QApplication::widgetAt(QCursor::pos()); p != nullptr && p != this;
         p = p->parentWidget()) {
        for (const Enlace *e : enlaces_) {
            const int16_t tema = queEs ? e->Tema() : e->Ayuda();
            if (e->w == p && tema != 0) {
                return tema;
            }
        }
    }
    return TEMA_DIALOGO;
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

// --- mirroring ----------------------------------------------------------------

void VentanaAbrirFic::SincronizaControl(QWidget *w, const ControlDialogo &c) {
    const int dentro = BordeDe(w->parentWidget());
    const QRect lugar(c.Left + dentro, c.Top + dentro, c.Width, c.Height);
    if (w->geometry() != lugar) {
        w->setGeometry(lugar);
    }
    if (w->isHidden() == c.Visible) {
        w->setVisible(c.Visible);
    }
    if (dynamic_cast<MarcaRectangulo *>(w) == nullptr && w->isEnabled() != c.Enabled) {
        w->setEnabled(c.Enabled);
    }
    const QString pista = QString::fromStdString(c.ToolTipText);
    if (w->toolTip() != pista) {
        w->setToolTip(pista);
    }
    w->setCursor(CursorDePuntero(c.MousePointer, c.MouseIcon));
    if (auto *b = qobject_cast<QPushButton *>(w)) {
        const auto &boton = static_cast<const BotonDialogo &>(c);
        b->setText(QString::fromStdString(boton.Caption));
        AjustaLetra(b, boton.Letra, b->text(), 6);
    } else if (auto *o = qobject_cast<QRadioButton *>(w)) {
        const auto &opcion = static_cast<const OpcionDialogo &>(c);
        o->setText(QString::fromStdString(opcion.Caption));
        o->setChecked(opcion.Value);
        const int marca = o->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                          o->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
        AjustaLetra(o, Fuente{}, o->text(), marca + 1);
    } else if (auto *l = qobject_cast<QLabel *>(w)) {
        const auto &etiqueta = static_cast<const EtiquetaDialogo &>(c);
        l->setText(QString::fromStdString(etiqueta.Caption));
        AjustaLetra(l, etiqueta.Letra, l->text(), 2);
        QPalette paleta = l->palette();
        paleta.setColor(QPalette::WindowText, ColorQt(etiqueta.ForeColor));
        paleta.setColor(QPalette::Window, ColorQt(etiqueta.BackColor));
        l->setPalette(paleta);
    } else if (auto *m = dynamic_cast<MarcaRectangulo *>(w)) {
        m->update();
    }
}

// The folder list shows a tree as the platform's does: the folders from the
// root down to the current one, each a step further in, with an open
// folder; below them the sub-folders, closed, one step further still.
void VentanaAbrirFic::PonIconosCarpetas() {
    const int actual = form_.Dir1.IndiceActual();
    for (int i = 0; i < dir1_->count(); ++i) {
        QListWidgetItem *item = dir1_->item(i);
        const int nivel = i <= actual ? i : actual + 1;
        item->setIcon(
            style()->standardIcon(i <= actual ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon));
        item->setData(Qt::UserRole, nivel);
        item->setText(QString(nivel * 2, ' ') + QString::fromStdString(form_.Dir1.List(i)));
    }
}

void VentanaAbrirFic::SincronizaLista(QListWidget *w, const ListaDialogo &l) {
    QStringList elementos;
    for (const std::string &e : l.Elementos()) {
        elementos << QString::fromStdString(e);
    }
    bool iguales = w->count() == elementos.size();
    for (int i = 0; iguales && i < w->count(); ++i) {
        iguales = w->item(i)->text().trimmed() == elementos[i].trimmed();
    }
    if (!iguales) {
        w->clear();
        w->addItems(elementos);
    }
    if (w == dir1_) {
        PonIconosCarpetas();
    }
    const int fila = &l == &form_.Dir1 ? form_.Dir1.IndiceActual() : l.ListIndex();
    if (w->currentRow() != fila) {
        w->setCurrentRow(fila);
    }
    if (fila < 0) {
        w->clearSelection();
    }
}

void VentanaAbrirFic::SincronizaListas() {
    const bool antes = sincronizando_;
    sincronizando_ = true;
    SincronizaLista(dir1_, form_.Dir1);
    SincronizaLista(file1_, form_.File1);
    SincronizaLista(lisNroPiezas_, form_.Lis_NroPiezas);
    const ListaDialogo &unidades = form_.Drive1;
    if (drive1_->count() != unidades.ListCount()) {
        drive1_->clear();
        for (const std::string &u : unidades.Elementos()) {
            drive1_->addItem(QString::fromStdString(u));
        }
    }
    const int actual = drive1_->findText(QString::fromStdString(form_.Drive1.Drive()));
    if (actual >= 0 && drive1_->currentIndex() != actual) {
        drive1_->setCurrentIndex(actual);
    }
    sincronizando_ = antes;
}

void VentanaAbrirFic::SincronizaCursorQueEs() {
    const bool queEs = form_.ModoQueEs != 0;
    if (queEs != cursorQueEs_) {
        cursorQueEs_ = queEs;
        if (queEs) {
            QApplication::setOverrideCursor(Qt::WhatsThisCursor);
        } else {
            QApplication::restoreOverrideCursor();
        }
    }
}

void VentanaAbrirFic::Sincroniza() {
    if (pos() != QPoint(form_.Left, form_.Top)) {
        move(form_.Left, form_.Top);
    }
    for (Enlace *e : enlaces_) {
        if (e->v != nullptr) {
            e->v->Sincroniza();
            if (e->v->isEnabled() != e->s->Enabled) {
                e->v->setEnabled(e->s->Enabled);
            }
        } else {
            SincronizaControl(e->w, *e->c);
        }
    }
    // The page of the buttons lies over the whole dialog when it shows.
    if (QWidget *pagina = VistaDe(form_.Pic_LugarBotones); pagina && pagina->isVisible()) {
        pagina->raise();
    }
    SincronizaListas();
    AplicaPunteroPantalla(form_.MousePointer);
    SincronizaCursorQueEs();
}
