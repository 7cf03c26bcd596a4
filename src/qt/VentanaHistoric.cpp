#include "qt/VentanaHistoric.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "core/PuzzGbl.h"
#include "history/FormHistoric.h"
#include "history/Historico.h"
#include "history/ServiciosHistorico.h"
#include "qt/Arranque.h"
#include "qt/Cursores.h"
#include "qt/ImagenQt.h"
#include "qt/ReflejaControl.h"
#include "qt/RotuladorQt.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"

VentanaHistoric::VentanaHistoric(FormHistoric &form, QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint |
                         Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      form_(form) {
    setModal(true);
    setWindowTitle(QString::fromUtf8("Histórico de puzzles"));
    setFixedSize(FormHistoric::ANCHO, FormHistoric::ALTO);
    setGeometry(form_.Left, form_.Top, FormHistoric::ANCHO, FormHistoric::ALTO);

    formulario_ = new VistaSuperficie(form_.Formulario, this);
    formulario_->AlPulsar = [this](int16_t b, int16_t s, float x, float y) {
        Atiende([this, b, s, x, y] { form_.Form_MouseDown(b, s, x, y); });
    };
    formulario_->AlMover = [this](int16_t b, int16_t s, float x, float y) {
        Atiende([this, b, s, x, y] { form_.Form_MouseMove(b, s, x, y); });
    };
    parche1_ = new VistaSuperficie(form_.Pic_Parche1, this);
    parche2_ = new VistaSuperficie(form_.Pic_Parche2, this);
    for (int16_t i = 1; i <= 2; ++i) {
        auto *tapa = new VistaSuperficie(form_.Pic_Tapa[static_cast<size_t>(i)], this);
        tapa->AlMover = [this, i](int16_t b, int16_t s, float x, float y) {
            Atiende([this, i, b, s, x, y] { form_.Pic_Tapa_MouseMove(i, b, s, x, y); });
        };
        tapas_[static_cast<size_t>(i)] = tapa;
    }

    texNombre_ = new QLineEdit(this);
    QFont letra = FuenteQt(form_.Formulario.Letra);
    letra.setStyleStrategy(QFont::PreferDefault); // a widget's text is never read back
    texNombre_->setFont(letra);
    texNombre_->setMaxLength(9);
    // A double quote or a line break would end the name's field early.
    texNombre_->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[^\"\\r\\n]*")), texNombre_));
    connect(texNombre_, &QLineEdit::textEdited, this, [this](const QString &texto) {
        Atiende([this, &texto] {
            form_.Tex_Nombre.Text = texto.toStdString();
            form_.Tex_Nombre_Change();
        });
    });
    Sincroniza();
}

VentanaHistoric::~VentanaHistoric() = default;

void VentanaHistoric::Atiende(const std::function<void()> &manejador) {
    manejador();
    if (form_.Descargado()) {
        AplicaPunteroPantalla(PuzzGbl::teselari.MousePointer);
        if (isVisible()) {
            done(0);
        }
        return;
    }
    Sincroniza();
}

void VentanaHistoric::Sincroniza() {
    for (VistaSuperficie *v : {formulario_, parche1_, parche2_, tapas_[1], tapas_[2]}) {
        v->Sincroniza();
    }
    const TextoNombre &t = form_.Tex_Nombre;
    ReflejaLugar(texNombre_, t);
    const QString texto = QString::fromStdString(t.Text);
    if (texNombre_->text() != texto) {
        const QSignalBlocker bloqueo(texNombre_);
        texNombre_->setText(texto);
    }
    AplicaPunteroPantalla(PuzzGbl::teselari.MousePointer);
}

void VentanaHistoric::keyPressEvent(QKeyEvent *evento) {
    if (evento->key() == Qt::Key_F1) {
        MuestraAyuda(TemasAyuda::Historico);
        return;
    }
    // Only the return arrow and the desktop's close button leave the book.
    if (evento->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(evento);
    }
}

namespace {

void MuestraModal(FormHistoric &libro) {
    VentanaHistoric ventana(libro, QApplication::activeWindow());
    if (!libro.Descargado()) {
        ventana.exec();
    }
}

void CargaImagenes(Superficie &pagina, Superficie &etiquetas) {
    CargaRecurso(QStringLiteral(":/teselari/libro/pagina.png"), pagina);
    CargaRecurso(QStringLiteral(":/teselari/libro/etiquetas.png"), etiquetas);
}

} // namespace

ServiciosHistorico ServiciosHistoricoQt() {
    ServiciosHistorico s;
    s.MuestraModal = MuestraModal;
    s.CargaImagenes = CargaImagenes;
    return s;
}
