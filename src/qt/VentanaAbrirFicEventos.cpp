// VentanaAbrirFic: the player's events, each run through the form's handler.
#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QMouseEvent>

#include "dialog/FormAbrirFic.h"
#include "qt/VentanaAbrirFic.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"

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
    auto llama = [this](Manejador m) -> VistaSuperficie::Manejador {
        if (m == nullptr) {
            return nullptr;
        }
        return [this, m](int16_t b, int16_t sh, float x, float y) {
            FormAbrirFic &form = form_;
            Atiende([&form, m, b, sh, x, y] { (form.*m)(b, sh, x, y); });
        };
    };
    auto enlaza = [this, llama](CuadroImagen &s, Manejador pulsar, Manejador mover,
                                Manejador soltar) {
        VistaSuperficie *v = VistaDe(s);
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
    // A click is a release over the control that took the press; a move
    // over it runs its move handler.
    auto clic = [this](CuadroImagen &s, std::function<void()> accion,
                       std::function<void(int16_t, int16_t, float, float)> mover) {
        VistaSuperficie *v = VistaDe(s);
        v->AlSoltar = [this, &s, accion](int16_t, int16_t, float x, float y) {
            if (x >= 0 && y >= 0 && x < static_cast<float>(s.Ancho()) &&
                y < static_cast<float>(s.Alto())) {
                Atiende(accion);
            }
        };
        v->AlMover = [this, mover](int16_t b, int16_t sh, float x, float y) {
            Atiende([&mover, b, sh, x, y] { mover(b, sh, x, y); });
        };
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
    for (CuadroImagen *s : {&f.Pic_Si, &f.Pic_No}) {
        VistaDe(*s)->AlMover = [this, s](int16_t, int16_t, float, float) {
            FormAbrirFic &form = form_;
            Atiende([&form, s] { form.PonManoSiNormal(*s); });
        };
    }
}

// A press of the left button on an entry is the player's click, also on
// the chosen entry (Qt has already moved the highlight to it). A change of
// the current row that no press follows at once is a key's, and selects
// as a click does; it is taken when the event that made it is over, when
// it is clear that no press came with it.
void VentanaAbrirFic::ConectaLista(QListWidget *w, ListaDialogo &l) {
    connect(w, &QAbstractItemView::pressed, this,
            [this, &l](const QModelIndex &i) { Atiende([&l, fila = i.row()] { l.Pulsa(fila); }); });
    connect(w, &QListWidget::currentRowChanged, this, [this, w, &l] {
        if (sincronizando_) {
            return;
        }
        QMetaObject::invokeMethod(
            this,
            [this, w, &l] {
                const int fila = w->currentRow();
                if (!form_.Descargado() && fila >= 0 && fila != l.ListIndex()) {
                    Atiende([&l, fila] { l.PonListIndex(fila); });
                }
            },
            Qt::QueuedConnection);
    });
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
    ConectaLista(file1_, f.File1);
    ConectaLista(lisNroPiezas_, f.Lis_NroPiezas);
    connect(file1_, &QAbstractItemView::doubleClicked, this, [this] {
        if (form_.File1.DblClick) {
            Atiende(form_.File1.DblClick);
        }
    });
    alMover_[file1_->viewport()] = [this](const QSinglePointEvent &raton) {
        const QPointF p = raton.position();
        const int16_t botones = BotonesDeRaton(raton.buttons());
        const int16_t teclas = TeclasDeRaton(raton.modifiers());
        Atiende([&] {
            form_.File1_MouseMove(botones, teclas, static_cast<float>(p.x()),
                                  static_cast<float>(p.y()));
        });
    };
    // A click on a folder only lights it; a double click opens it.
    connect(dir1_, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &i) {
        Atiende([this, fila = i.row()] { form_.Dir1.Abre(fila); });
    });
    for (ListaDialogo *l : {static_cast<ListaDialogo *>(&f.Dir1), &f.Lis_NroPiezas}) {
        alMover_[static_cast<QListWidget *>(WidgetDe(*l))->viewport()] =
            [this, l](const QSinglePointEvent &) {
                Atiende([this, l] { form_.PonManoSiNormal(*l); });
            };
    }
    connect(drive1_, &QComboBox::activated, this, [this](int i) {
        if (!sincronizando_ && i >= 0 && i < form_.Drive1.ListCount()) {
            ListaUnidades &unidades = form_.Drive1;
            Atiende([&unidades, i] { unidades.PonDrive(unidades.List(i)); });
        }
    });
}

void VentanaAbrirFic::ConectaBotones() {
    FormAbrirFic &f = form_;
    auto pulsa = [this](EstadoControl &c, std::function<void()> accion) {
        auto *b = static_cast<QAbstractButton *>(WidgetDe(c));
        connect(b, &QAbstractButton::clicked, this, [this, accion] { Atiende(accion); });
        alMover_[b] = [this, &c](const QSinglePointEvent &) {
            Atiende([this, &c] { form_.PonManoSiNormal(c); });
        };
    };
    pulsa(f.Bot_Portapapeles, [&f] { f.Bot_Portapapeles_Click(); });
    pulsa(f.Bot_Prueba, [&f] { f.Bot_Prueba_Click(); });
    pulsa(f.Bot_Botones, [&f] { f.Bot_Botones_Click(); });
    pulsa(f.Bot_QueEs, [&f] { f.Bot_QueEs_Click(); });
    for (int16_t i = 1; i < static_cast<int16_t>(f.Opt_Siempre.size()); ++i) {
        pulsa(f.Opt_Siempre[i], [&f, i] { f.Opt_Siempre_Click(i); });
        pulsa(f.Opt_Derecho[i], [&f, i] { f.Opt_Derecho_Click(i); });
    }
}

// In what's-this mode a press on any control gives the topic of the
// nearest control that holds it and has one, and does nothing else.
bool VentanaAbrirFic::AtiendeQueEs(QWidget *w) {
    if (!form_.ModoQueEs) {
        return false;
    }
    int16_t tema = 0;
    for (QWidget *p = w; p != nullptr && tema == 0; p = p->parentWidget()) {
        const EstadoControl *c = ControlDe(p);
        tema = c != nullptr ? c->WhatsThisHelpID : 0;
    }
    Atiende([this, tema] { form_.AtiendeQueEs(tema != 0 ? tema : TemasAyuda::Personalizar); });
    return true;
}

// Every press passes here first, for what's-this; a list box takes the left
// button only; a move over a list, or a move onto or over a button, runs
// what it asks for.
bool VentanaAbrirFic::eventFilter(QObject *objeto, QEvent *evento) {
    const QEvent::Type tipo = evento->type();
    if (tipo == QEvent::MouseButtonPress && AtiendeQueEs(static_cast<QWidget *>(objeto))) {
        return true;
    }
    auto *lista = qobject_cast<QListWidget *>(objeto->parent());
    if ((tipo == QEvent::MouseButtonPress || tipo == QEvent::MouseButtonDblClick) &&
        lista != nullptr && lista->viewport() == objeto &&
        static_cast<QMouseEvent *>(evento)->button() != Qt::LeftButton) {
        return true;
    }
    const bool entra = tipo == QEvent::Enter && qobject_cast<QAbstractButton *>(objeto) != nullptr;
    if (tipo == QEvent::MouseMove || entra) {
        const auto mover = alMover_.find(objeto);
        if (mover != alMover_.end()) {
            mover->second(static_cast<const QSinglePointEvent &>(*evento));
        }
    }
    return QDialog::eventFilter(objeto, evento);
}
