// Shared set-up of the game tests through the real widgets: a dealt board on
// the main form as the game shows it, the mouse driven through the window as
// the screen delivers it, and what the screen shows read back from the
// window's store.
#pragma once

#include <QApplication>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "motor_comun.h"
#include "panels/Paneles.h"
#include "plataforma_prueba.h"
#include "qt/Arranque.h"
#include "qt/FormMensajes.h"
#include "qt/ImagenQt.h"
#include "qt/Manejadores.h"
#include "qt/VentanaTeselari.h"
#include "qt/VistaSuperficie.h"
#include "tablero_comun.h"

// The hook the tests put at the game's yields: it runs at each one, with the
// number of the yield (from 1), after the pending events.
inline std::function<void(int32_t)> alCederEventos;
inline int32_t eventosCedidos = 0;

inline void CedeEventosPrueba() {
    QCoreApplication::processEvents();
    ++eventosCedidos;
    if (alCederEventos) {
        alCederEventos(eventosCedidos);
    }
}

// The hook the tests put at the game's sounds: it runs when the game starts a
// clip, before it lets any event through, so what the screen shows then has
// been drawn without the event loop.
inline std::function<void(int16_t)> alSonar;

inline void SuenaPrueba(int16_t clip) {
    if (alSonar) {
        alSonar(clip);
    }
}

class JuegoQt : public testing::Test {
  protected:
    // A cut puzzle on the screen of the test executable, every piece at home
    // and the pile in order, painted; the panels laid out; the window shown
    // with its handlers. Sound off, no delays; the real message form.
    void Prepara(int16_t lado, int16_t tipo, int32_t ancho, int32_t alto) {
        using namespace PuzzGbl;
        const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
        PreparaJuego(lado, tipo, ancho, alto, static_cast<int16_t>(pantalla.width()),
                     static_cast<int16_t>(pantalla.height()));
        InstalaServicios();
        ServiciosPlataforma s;
        s.Mensaje = MuestraFormMensajes;
        s.Eventos = CedeEventosPrueba;
        s.Sonido = SuenaPrueba;
        PonEscritorio(s);
        alCederEventos = nullptr;
        alSonar = nullptr;
        eventosCedidos = 0;
        Sonido = 2;
        LlenaTablas();
        CargaRecurso(RutaTiraBotones(), teselari.Pic_BmpBoton);
        SesionRestaurando = VERDADERO;
        PreparaBitmap();
        ColocaPiezasEnCasa();
        RepintaTablero();
        ventana = std::make_unique<VentanaTeselari>();
        ConectaManejadores(*ventana);
        DibujaBotonesSiempre();
        ventana->MuestraPantallaCompleta();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
        // Every message is answered by a key once it stands, so that no test
        // waits for ever; what it said is kept.
        contestador_.setInterval(5);
        QObject::connect(&contestador_, &QTimer::timeout, [this] { ContestaMensaje(); });
        contestador_.start();
    }

    struct Mensaje {
        QString titulo, texto;
    };
    std::vector<Mensaje> mensajes;
    // Runs while a message stands, before it is answered.
    std::function<void()> alVerMensaje;

    void TearDown() override {
        contestador_.stop();
        alCederEventos = nullptr;
        alSonar = nullptr;
        ventana.reset();
        PonEscritorio(ServiciosPlataforma{});
        RestauraValoresIniciales();
    }

    // The window point over surface point (x, y) of the work area.
    QPoint EnVentana(int x, int y) const {
        return ventana->Pic_Trabajo->mapTo(ventana.get(), QPoint(x, y));
    }

    // The left button on the work area, in its surface coordinates.
    void Pulsa(int x, int y, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mousePress(ventana->windowHandle(), b, {}, EnVentana(x, y));
    }
    void Mueve(int x, int y) { QTest::mouseMove(ventana->windowHandle(), EnVentana(x, y)); }
    void Suelta(int x, int y, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mouseRelease(ventana->windowHandle(), b, {}, EnVentana(x, y));
    }

    // The mouse grips piece k by its cell's centre where it lies, carries it
    // in two moves and lets it go so that the cell's corner would stand at
    // (x, y).
    void Arrastra(int16_t k, int32_t x, int32_t y) {
        using namespace PuzzGbl;
        const int gx = AnchoPieza / 2, gy = AltoPieza / 2;
        const int x0 = Piezas[k].X + gx, y0 = Piezas[k].Y + gy;
        Pulsa(x0, y0);
        ASSERT_EQ(OrdenPiezas[1], k);
        Mueve((x0 + x + gx) / 2, (y0 + y + gy) / 2);
        Mueve(x + gx, y + gy);
        Suelta(x + gx, y + gy);
    }

    // Piece k lies at (x, y), painted there, on top of the pile.
    static void PonArriba(int16_t k, int32_t x, int32_t y) {
        PonPieza(k, x, y);
        PiezaPrioritaria(PosicionDe(k));
        RepintaTablero();
    }

    // The window as the screen shows it.
    QImage Pantalla() const {
        return QGuiApplication::primaryScreen()
            ->grabWindow(ventana->winId())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    // The pixels of `r` (window coordinates) where the screen differs from
    // surface s, whose corner stands at `origen`; the first one for the
    // message.
    static int Distintos(const QImage &pantalla, const CuadroImagen &s, QPoint origen,
                         const QRect &r, std::string *primero = nullptr) {
        int distintos = 0;
        for (int y = r.top(); y <= r.bottom(); ++y) {
            for (int x = r.left(); x <= r.right(); ++x) {
                const uint32_t visto = pantalla.pixel(x, y) & 0xFFFFFF;
                const uint32_t debido = s.Fila(y - origen.y())[x - origen.x()] & 0xFFFFFF;
                if (visto != debido && distintos++ == 0 && primero != nullptr) {
                    *primero = std::to_string(x) + "," + std::to_string(y);
                }
            }
        }
        return distintos;
    }

    // What the screen shows of the work area, where no other control lies
    // over it, against the surface's pixels.
    int PixelesDistintosEnPantalla(std::string *primero = nullptr) const {
        const QImage pantalla = Pantalla();
        // The other controls stand where the game's state puts them: a
        // surface the game has hidden must no longer be seen.
        QRegion libre(ventana->Pic_Trabajo->geometry() & ventana->rect());
        for (QObject *o : ventana->children()) {
            auto *w = qobject_cast<QWidget *>(o);
            auto *v = qobject_cast<VistaSuperficie *>(o);
            if (v != nullptr && v != ventana->Pic_Trabajo && v->Control().Visible) {
                const CuadroImagen &c = v->Control();
                libre -= QRect(c.Left, c.Top, c.Ancho(), c.Alto());
            } else if (v == nullptr && w != nullptr && w->isVisible()) {
                libre -= w->geometry();
            }
        }
        // The model is a child of the work area and moves with it.
        const CuadroImagen &modelo = PuzzGbl::teselari.Pic_Muestra;
        if (modelo.Visible) {
            libre -= QRect(modelo.Left, modelo.Top, modelo.Ancho(), modelo.Alto())
                         .translated(ventana->Pic_Trabajo->pos());
        }
        int distintos = 0;
        for (const QRect &r : libre) {
            distintos +=
                Distintos(pantalla, PuzzGbl::teselari.Pic_Trabajo, ventana->Pic_Trabajo->pos(), r,
                          distintos == 0 ? primero : nullptr);
        }
        return distintos;
    }

    // Whether the screen shows the control's own surface where it stands.
    bool SeVeSuSuperficie(VistaSuperficie *v) {
        const CuadroImagen &s = v->Control();
        const QPoint p = v->mapTo(ventana.get(), QPoint(0, 0));
        return Distintos(Pantalla(), s, p, QRect(p, QSize(s.Ancho(), s.Alto()))) == 0;
    }

    std::unique_ptr<VentanaTeselari> ventana;

  private:
    void ContestaMensaje() {
        auto *f = qobject_cast<FormMensajes *>(QApplication::activeModalWidget());
        if (f == nullptr || !f->isVisible()) {
            return;
        }
        mensajes.push_back({f->Tex_Titulo->text(), f->Tex_Mensaje->text()});
        if (alVerMensaje) {
            alVerMensaje();
        }
        QTest::keyClick(f, Qt::Key_Return);
    }

    QTimer contestador_;
};
