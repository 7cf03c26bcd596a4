// The start of the game up to its first frame, from a saved 800-piece game,
// through the real Form_Load on Qt's offscreen platform (1920 x 1080).
//
// The one second of calibration is left out: its count is given
// beforehand. What is timed is the rest of the load (working folder, tables,
// regions, the saved game read, its picture loaded from a BMP and cut, the
// pile painted, the panels, the window shown) and the event loop up to the
// end of the first paint of the work area.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "../Partida.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "qt/Arranque.h"
#include "qt/VentanaTeselari.h"
#include "qt/VistaSuperficie.h"
#include "session/Sesion.h"

namespace {

using Reloj = std::chrono::steady_clock;

constexpr int16_t CELDAS = 20;
constexpr int16_t TIPO_DOBLE = 2; // circles: 800 pieces on 20 x 20 cells
// Any count will do: at the speed of the saved game the delays are empty.
constexpr double VUELTAS_FIJAS = 1.0e7;
// Past this the first frame is taken as never coming.
constexpr auto ESPERA_MAXIMA = std::chrono::seconds(10);

// The saved game: a temporary folder holding the picture as BMP and
// TESEL32.INI written by GuardaSesion from a dealt game.
struct PartidaGuardada {
    std::string carpeta;
    std::vector<Pieza> piezas;
    std::vector<int16_t> orden;
};

std::string GuardaImagenBmp(const std::string &carpeta) {
    ImagenGenerada(PuzzGbl::teselari.Pic_Origin);
    const Superficie &s = PuzzGbl::teselari.Pic_Origin;
    QImage imagen(s.Ancho(), s.Alto(), QImage::Format_RGB32);
    for (int y = 0; y < s.Alto(); ++y) {
        std::memcpy(imagen.scanLine(y), s.Fila(y), static_cast<size_t>(s.Ancho()) * 4);
    }
    const std::string ruta = carpeta + "/foto.bmp";
    return imagen.save(QString::fromStdString(ruta), "BMP") ? ruta : std::string();
}

const PartidaGuardada *PreparaPartidaGuardada() {
    using namespace PuzzGbl;
    static PartidaGuardada p;
    if (!p.carpeta.empty()) {
        return &p;
    }
    char plantilla[] = "/tmp/teselari-arranque-XXXXXX";
    if (mkdtemp(plantilla) == nullptr) {
        return nullptr;
    }
    const std::string ruta = GuardaImagenBmp(plantilla);
    if (ruta.empty()) {
        return nullptr;
    }
    PreparaPartida(CELDAS, TIPO_DOBLE, Reparto::Barajado);
    FicheroImagen = ruta;
    NombreImagen = "foto.bmp";
    CarpetaImagen = plantilla;
    UnidadImagen = UnidadDeCarpeta(plantilla);
    Zoom = 100;
    ImagenValida = VERDADERO;
    PartidaValida = VERDADERO;
    Velocidad = 100;
    DirectorioTrabajo = plantilla;
    GuardaSesion();
    // An empty history: a missing one would stop the load with its message.
    if (std::FILE *his = std::fopen((std::string(plantilla) + "/TESEL32.HIS").c_str(), "wb")) {
        std::fclose(his);
    }
    p.carpeta = plantilla;
    p.piezas = Piezas;
    p.orden = OrdenPiezas;
    return &p;
}

// Ends the wait at the end of the first paint of the work area: the paint is
// done inside the filter, and the time taken after it.
class PrimerPintado : public QObject {
  public:
    bool pintado = false;
    Reloj::time_point fin;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override {
        if (evento->type() != QEvent::Paint || pintado) {
            return false;
        }
        objeto->event(evento); // QObject::event is public: the widget paints here
        fin = Reloj::now();
        pintado = true;
        return true;
    }
};

// A message box would stop the load for good: it is closed and noted.
bool CierraMensajes() {
    QWidget *modal = QApplication::activeModalWidget();
    if (modal != nullptr) {
        modal->close();
        return true;
    }
    return false;
}

bool PartidaRestaurada(const PartidaGuardada &p) {
    return PuzzGbl::NroPiezas == 800 && PuzzGbl::Piezas == p.piezas &&
           PuzzGbl::OrdenPiezas == p.orden;
}

void BM_ArranquePrimerFotograma(benchmark::State &state) {
    const PartidaGuardada *p = PreparaPartidaGuardada();
    if (p == nullptr) {
        state.SkipWithError("the saved game could not be written");
        return;
    }
    PonArranqueMedido(VUELTAS_FIJAS, QString::fromStdString(p->carpeta));
    PonCaretaEnArranque(false);
    bool mensaje = false;
    QTimer vigia;
    QObject::connect(&vigia, &QTimer::timeout, [&] { mensaje = CierraMensajes() || mensaje; });
    vigia.start(200);
    bool restaurada = true;
    for (auto _ : state) {
        PrimerPintado filtro;
        const Reloj::time_point inicio = Reloj::now();
        VentanaTeselari &ventana = Form_Load();
        ventana.Pic_Trabajo->installEventFilter(&filtro);
        while (!filtro.pintado && Reloj::now() - inicio < ESPERA_MAXIMA) {
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        if (!filtro.pintado) {
            state.SkipWithError("the work area was never painted");
            break;
        }
        state.SetIterationTime(std::chrono::duration<double>(filtro.fin - inicio).count());
        restaurada = restaurada && PartidaRestaurada(*p);
        ventana.Pic_Trabajo->removeEventFilter(&filtro);
        delete &ventana;
        QApplication::processEvents();
    }
    PonArranqueMedido(0.0, QString());
    PonCaretaEnArranque(true);
    if (mensaje || !restaurada) {
        state.SkipWithError("the saved game was not brought back as written");
    }
}
BENCHMARK(BM_ArranquePrimerFotograma)
    ->UseManualTime()
    ->Iterations(5)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

// The offscreen platform says at every show that it can't raise a window.
void FiltraAvisos(QtMsgType tipo, const QMessageLogContext &, const QString &texto) {
    if (!texto.contains(QStringLiteral("does not support raise"))) {
        std::fprintf(stderr, "%d: %s\n", int(tipo), qPrintable(texto));
    }
}

} // namespace

int main(int argc, char *argv[]) {
    setenv("QT_QPA_PLATFORM", "offscreen:configfile=" TESELARI_PANTALLA_BENCH, 1);
    qInstallMessageHandler(FiltraAvisos);
    QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::error_code ec;
    if (const PartidaGuardada *p = PreparaPartidaGuardada()) {
        std::filesystem::remove_all(p->carpeta, ec);
    }
    // The large JPEG of BM_CargaJpegGrande.
    std::filesystem::remove(QDir::tempPath().toStdString() + "/teselari-bench-grande.jpg", ec);
    return 0;
}
