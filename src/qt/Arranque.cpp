#include "qt/Arranque.h"

#include <QApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QScreen>
#include <cstring>
#include <memory>

#include "core/Controles.h"
#include "core/Cronometro.h"
#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "history/Historico.h"
#include "panels/Paneles.h"
#include "qt/CargaImagenQt.h"
#include "qt/Cursores.h"
#include "qt/FormMensajes.h"
#include "qt/ImagenQt.h"
#include "qt/Manejadores.h"
#include "qt/ReproductorSonidos.h"
#include "qt/RotuladorQt.h"
#include "qt/VentanaAbrirFic.h"
#include "qt/VentanaAyuda.h"
#include "qt/VentanaCareta.h"
#include "qt/VentanaHistoric.h"
#include "qt/VentanaTeselari.h"
#include "raster/Region.h"
#include "services/Ayuda.h"
#include "services/Esperas.h"
#include "services/Sonidos.h"
#include "session/Enlaces.h"
#include "session/Sesion.h"

#ifndef TESELARI_DATOS_INSTALADOS
#define TESELARI_DATOS_INSTALADOS ""
#endif
#ifndef TESELARI_ID_ESCRITORIO
#define TESELARI_ID_ESCRITORIO "es.teselari.Teselari"
#endif

using namespace PuzzGbl;

namespace {

VentanaTeselari *ventana = nullptr;
bool terminado = false;
double vueltasFijas = 0.0;
QString carpetaFija;
bool conCareta = true;
std::unique_ptr<VentanaCareta> careta;

void Eventos() {
    QCoreApplication::processEvents();
    if (ventana != nullptr) {
        ventana->Sincroniza();
    }
}

void Termina() {
    terminado = true;
    if (ventana != nullptr) {
        ventana->Timer1.stop();
        ventana->hide();
    }
    QCoreApplication::exit(0);
}

} // namespace

QString RutaTiraBotones() {
    return QStringLiteral(":/teselari/botones.png");
}

QString RutaCaraCronometro() {
    return QStringLiteral(":/teselari/cronometro.png");
}

void PonArranqueMedido(double vueltasPorSegundo, const QString &carpetaPrograma) {
    vueltasFijas = vueltasPorSegundo;
    carpetaFija = carpetaPrograma;
}

void PonIconoYEntradaEscritorio() {
    QIcon icono;
    for (int lado : {32, 48, 64, 128, 256}) {
        icono.addFile(QStringLiteral(":/teselari/iconos/teselari-%1.png").arg(lado),
                      QSize(lado, lado));
    }
    QApplication::setWindowIcon(icono);
    QGuiApplication::setDesktopFileName(QStringLiteral(TESELARI_ID_ESCRITORIO));
}

void PonCaretaEnArranque(bool mostrar) {
    conCareta = mostrar;
}

bool ProgramaTerminado() {
    return terminado;
}

void InstalaServicios() {
    EnlazaArriba();
    static RotuladorQt rotulador;
    static ReproductorSonidos *reproductor = new ReproductorSonidos(qApp);
    PonReproductor(reproductor);
    ServiciosPlataforma s;
    s.Mensaje = MuestraFormMensajes;
    s.Sonido = ReproduceClip;
    s.Eventos = Eventos;
    s.Termina = Termina;
    s.MuestraAyuda = MuestraVentanaAyuda;
    s.CargaImagen = CargaImagenQt;
    s.Texto = &rotulador;
    // The program's folder is where the sample pictures stand: the
    // installed game's data folder, or in the build tree the executable's.
    s.DirectorioPrograma =
        carpetaFija.isEmpty()
            ? CarpetaDelPrograma(QCoreApplication::applicationDirPath().toStdString(),
                                 TESELARI_DATOS_INSTALADOS)
            : carpetaFija.toStdString();
    s.Dialogo = ServiciosDialogoQt();
    s.Historico = ServiciosHistoricoQt();
    InstalaPlataforma(s);
}

VentanaTeselari &Form_Load() {
    RestauraValoresIniciales();
    InstalaServicios();

    // One second of counting, before any window is on the screen.
    if (vueltasFijas > 0.0) {
        VueltasPorSegundo = vueltasFijas;
    } else {
        CalibraVelocidad();
    }
    // The hourglass over the whole screen until the end of the load.
    teselari.MousePointer = PUNTERO_ESPERA;
    AplicaPunteroPantalla(teselari.MousePointer);
    // The line end of the messages; the middle speed until the settings
    // are read.
    NuevaLinea = "\r\n";
    Velocidad = 50;
    // The splash, modal: the load goes on once it has ended.
    if (conCareta) {
        careta = std::make_unique<VentanaCareta>();
        MuestraCareta(*careta);
    }
    // The working folder is the program's when it can be written.
    DirectorioTrabajo = DirectorioPrograma();
    CompruebaSiCD();
    ModoResolver = FALSO;
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    AnchoPantalla = static_cast<int16_t>(pantalla.width());
    AltoPantalla = static_cast<int16_t>(pantalla.height());
    // The five regions exist for the whole run; they start empty.
    for (Region *r : {&RegionAnterior, &RegionNueva, &RegionRecorte, &RegionPieza, &RegionSuelta}) {
        SetRectRgn(*r, 0, 0, 0, 0);
    }
    // The constant tables; no button pressed; the pictures the forms carry.
    LlenaTablas();
    BotonPulsado.fill(FALSO);
    CargaRecurso(RutaTiraBotones(), teselari.Pic_BmpBoton);
    CargaRecurso(RutaCaraCronometro(), teselari.Pic_Cronome);
    // The history read, its book installed; its message has the strip now.
    LeeHistorico();

    ventana = new VentanaTeselari();
    ConectaManejadores(*ventana);

    // The saved game: settings, picture and pieces, dealt on the surfaces
    // while the window is still hidden; messages may already show here.
    RestauraSesion();

    // The always-visible panel and the tooltips.
    DibujaBotonesSiempre();
    ActualizaPistas();
    // The window covers the screen.
    ventana->MuestraPantallaCompleta();
    // The chronometer left of the always-visible panel.
    CuadroImagen &cronome = teselari.Pic_Cronome;
    cronome.Move(teselari.Pic_BotonesSiempre.Left - cronome.Ancho(), 0);
    cronome.Visible = Cronometro < 2;
    // The clock counts from the time restored; Timer1 ticks from now on.
    ArrancaCronometro();
    ventana->Timer1.start();
    // The splash unloaded.
    careta.reset();
    // The default pointer again.
    teselari.MousePointer = PUNTERO_NORMAL;
    ventana->Sincroniza();
    return *ventana;
}
