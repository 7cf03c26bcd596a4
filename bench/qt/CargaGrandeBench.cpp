// The load of a very large picture: a JPEG of 20000 x 15000 pixels (300 M
// pixels, 1.2 GB at full size), read through the game's loader into a
// surface, decoded straight at the reduced size the zoom rules can use. The
// target: within 2 s and 600 MB of peak memory. Peak is the process's
// resident peak (VmHWM) during the loads, reset just before them, so it
// counts the Qt libraries and the file's bytes read whole.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QImage>
#include <QString>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "qt/CargaImagenQt.h"
#include "raster/Superficie.h"

namespace {

constexpr int ANCHO = 20000, ALTO = 15000;

// A picture with detail everywhere, as a photograph has: bands of a 256
// colour palette crossed by a fine pattern. Written once per run.
const std::string &JpegGrande() {
    static const std::string ruta = [] {
        const std::string r = QDir::tempPath().toStdString() + "/teselari-bench-grande.jpg";
        QImage imagen(ANCHO, ALTO, QImage::Format_Indexed8);
        QList<QRgb> paleta;
        for (int i = 0; i < 256; ++i) {
            paleta.append(qRgb(i, (i * 7) & 0xFF, 255 - i));
        }
        imagen.setColorTable(paleta);
        for (int y = 0; y < ALTO; ++y) {
            uchar *fila = imagen.scanLine(y);
            for (int x = 0; x < ANCHO; ++x) {
                fila[x] = static_cast<uchar>(x / 40 + y / 30 + ((x ^ y) & 7));
            }
        }
        imagen.save(QString::fromStdString(r), "JPEG", 85);
        return r;
    }();
    return ruta;
}

// The resident peak of the process in KiB, and its reset.
long PicoResidente() {
    std::ifstream estado("/proc/self/status");
    std::string linea;
    while (std::getline(estado, linea)) {
        if (linea.rfind("VmHWM:", 0) == 0) {
            return std::stol(linea.substr(6));
        }
    }
    return -1;
}

void ReiniciaPico() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

void BM_CargaJpegGrande(benchmark::State &state) {
    const std::string &ruta = JpegGrande();
    ReiniciaPico();
    bool leida = true;
    for (auto _ : state) {
        Superficie s;
        const CargaDeImagen carga = CargaImagenQt(ruta, s);
        leida = leida && carga.Leida() && carga.Ancho == ANCHO && carga.Alto == ALTO;
        benchmark::DoNotOptimize(s.Fila(0));
    }
    state.counters["pico_MiB"] = static_cast<double>(PicoResidente()) / 1024.0;
    if (!leida) {
        state.SkipWithError("the picture was not read at its stated size");
    }
}
BENCHMARK(BM_CargaJpegGrande)
    ->Iterations(3)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

// The baseline of the same run: a copy of 3 MiB, the bytes of a 1024 x 768
// picture.
void BM_Memcpy(benchmark::State &state) {
    const size_t bytes = static_cast<size_t>(state.range(0));
    std::vector<char> origen(bytes, 1), destino(bytes);
    for (auto _ : state) {
        std::memcpy(destino.data(), origen.data(), bytes);
        benchmark::DoNotOptimize(destino.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Memcpy)->Arg(3145728)->Repetitions(5)->ReportAggregatesOnly(true);

} // namespace
