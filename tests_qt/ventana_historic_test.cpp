// The book's window: where its widgets stand, the name box's filter, the
// pointing hand, and its modal opening by command 10.
#include <QLineEdit>
#include <QTimer>
#include <gtest/gtest.h>

#include "history/FormHistoric.h"
#include "panels/Comandos.h"
#include "qt/VentanaHistoric.h"
#include "qt/VistaSuperficie.h"
#include "ventana_comun.h"

using namespace PuzzGbl;

namespace {

class VentanaHistoricTest : public ventana_prueba::VentanaAbierta<FormHistoric, VentanaHistoric> {
  protected:
    void SetUp() override {
        ventana_prueba::PreparaEscritorio();
        Historico.assign(24, RegistroHistorico{});
        NroRegistrosHistorico = 3;
        NombreJugador = CadenaFija("Ana", 9);
        Abre();
    }
};

// Centred, 541 x 344 inside a border that can't be resized; the name box on
// the first page only; in a section the two patches of labels over the
// pages and the tabs' patches at the section's places.
TEST_F(VentanaHistoricTest, CadaControlEnSuSitio) {
    EXPECT_EQ(ventana->geometry(), QRect(241, 212, 541, 344));
    EXPECT_EQ(ventana->minimumSize(), ventana->maximumSize());
    EXPECT_FALSE(ventana->windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_EQ(ventana->windowTitle(), QString::fromUtf8("Histórico de puzzles"));
    QLineEdit *nombre = ventana->TexNombre();
    EXPECT_EQ(nombre->geometry(), QRect(419, 293, 89, 19));
    EXPECT_TRUE(nombre->isVisible());
    EXPECT_EQ(nombre->text(), "Ana");
    QTest::mouseClick(ventana->VistaFormulario(), Qt::LeftButton, {}, QPoint(524, 60));
    EXPECT_FALSE(nombre->isVisible());
    const std::pair<const Superficie *, QRect> vistas[] = {
        {&form->Pic_Parche1, QRect(291, 14, 124, 298)},
        {&form->Pic_Parche2, QRect(40, 14, 124, 298)},
        {&form->Pic_Tapa[1], QRect(3, 100, 26, 215)},
        {&form->Pic_Tapa[2], QRect(512, 28, 26, 72)}};
    for (const auto &[superficie, lugar] : vistas) {
        const QWidget *w = nullptr;
        for (auto *vista : ventana->findChildren<VistaSuperficie *>()) {
            w = &vista->Control() == superficie ? vista : w;
        }
        ASSERT_NE(w, nullptr);
        EXPECT_TRUE(w->isVisible());
        EXPECT_EQ(w->geometry(), lugar);
    }
}

// The box takes nine characters at most and neither a double quote nor a
// line break; each change reaches NombreJugador.
TEST_F(VentanaHistoricTest, ElNombreNoAdmiteComillasNiSaltos) {
    QLineEdit *nombre = ventana->TexNombre();
    nombre->setFocus();
    nombre->selectAll();
    QTest::keyClicks(nombre, "Lu\"cas");
    QTest::keyClick(nombre, Qt::Key_Return);
    QTest::keyClick(nombre, Qt::Key_Enter);
    EXPECT_EQ(nombre->text(), "Lucas");
    EXPECT_EQ(NombreJugador, "Lucas    ");
    QTest::keyClicks(nombre, "Fernandez");
    EXPECT_EQ(NombreJugador, "LucasFern");
    EXPECT_TRUE(ventana->isVisible());
}

// The book's own pointer reaches the widget as the pointing hand.
TEST_F(VentanaHistoricTest, LaManoSobreLoQueSePulsa) {
    VistaSuperficie *libro = ventana->VistaFormulario();
    QTest::mouseMove(libro, QPoint(15, 16));
    EXPECT_EQ(libro->cursor().shape(), Qt::BitmapCursor);
    QTest::mouseMove(libro, QPoint(300, 200));
    EXPECT_EQ(libro->cursor().shape(), Qt::ArrowCursor);
}

// Command 10 shows the book modally: Escape leaves it open, the return
// arrow closes it.
TEST(VentanaHistoricModal, LaOrdenDiezLoAbreYLaFlechaLoCierra) {
    ventana_prueba::PreparaEscritorio();
    bool visto = false;
    QTimer::singleShot(100, [&visto] {
        auto *libro = qobject_cast<VentanaHistoric *>(QApplication::activeModalWidget());
        ASSERT_NE(libro, nullptr);
        QTest::keyClick(libro, Qt::Key_Escape);
        visto = libro->isVisible();
        QTest::mouseClick(libro->VistaFormulario(), Qt::LeftButton, {}, QPoint(15, 16));
    });
    PulsaBoton(10);
    EXPECT_TRUE(visto);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    ventana_prueba::RestauraEscritorio();
}

} // namespace
