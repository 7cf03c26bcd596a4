// VentanaAbrirFic: the form's state mirrored onto the widgets.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

#include "dialog/FormAbrirFic.h"
#include "qt/Cursores.h"
#include "qt/ReflejaControl.h"
#include "qt/RotuladorQt.h"
#include "qt/VentanaAbrirFic.h"
#include "qt/VistaSuperficie.h"

namespace {

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

} // namespace

void VentanaAbrirFic::ReflejaBoton(QPushButton *w, const BotonDialogo &b) {
    w->setText(QString::fromStdString(b.Caption));
    AjustaLetra(w, b.Letra, w->text(), 6);
}

void VentanaAbrirFic::ReflejaOpcion(QRadioButton *w, const OpcionDialogo &o) {
    w->setText(QString::fromStdString(o.Caption));
    w->setChecked(o.Value);
    const int marca = w->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                      w->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    AjustaLetra(w, Fuente{}, w->text(), marca + 1);
}

void VentanaAbrirFic::ReflejaEtiqueta(QLabel *w, const EtiquetaDialogo &e) {
    w->setText(QString::fromStdString(e.Caption));
    AjustaLetra(w, e.Letra, w->text(), 2);
    QPalette paleta = w->palette();
    paleta.setColor(QPalette::WindowText, QColor::fromRgb(APixel(e.ForeColor)));
    paleta.setColor(QPalette::Window, QColor::fromRgb(APixel(e.BackColor)));
    w->setPalette(paleta);
}

// Place, size, visibility, tooltip and pointer.
void VentanaAbrirFic::ReflejaComun(QWidget *w, const ControlConTamano &c) {
    ReflejaLugar(w, c);
    const QString pista = QString::fromStdString(c.ToolTipText);
    if (w->toolTip() != pista) {
        w->setToolTip(pista);
    }
    w->setCursor(CursorDePuntero(c.MousePointer, c.MouseIcon));
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
    for (const Enlace &e : enlaces_) {
        e.refleja();
    }
    // The page of the buttons lies over the whole dialog when it shows.
    if (QWidget *pagina = VistaDe(form_.Pic_LugarBotones); pagina && pagina->isVisible()) {
        pagina->raise();
    }
    SincronizaListas();
    AplicaPunteroPantalla(form_.MousePointer);
    SincronizaCursorQueEs();
}
