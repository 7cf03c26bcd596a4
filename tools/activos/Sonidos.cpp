#include "Sonidos.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "Azar.h"

namespace {

constexpr double Pi = 3.14159265358979323846;

// Raised-cosine fades at both ends, so that no clip starts or ends with a
// click.
void SuavizaExtremos(std::vector<double> &s, int frecuencia, double entrada, double salida) {
    const int a = std::max(1, static_cast<int>(entrada * frecuencia));
    const int b = std::max(1, static_cast<int>(salida * frecuencia));
    const int n = static_cast<int>(s.size());
    for (int i = 0; i < n; ++i) {
        double g = 1;
        if (i < a) {
            g *= 0.5 - 0.5 * std::cos(Pi * i / a);
        }
        if (i >= n - b) {
            g *= 0.5 - 0.5 * std::cos(Pi * (n - 1 - i) / b);
        }
        s[i] *= g;
    }
}

// A struck tone: partials (frequency, amplitude, decay time) from `inicio`.
void Golpe(std::vector<double> &s, int fs, double inicio,
           std::initializer_list<std::array<double, 3>> parciales) {
    const int i0 = static_cast<int>(inicio * fs);
    for (int i = std::max(0, i0); i < static_cast<int>(s.size()); ++i) {
        const double t = static_cast<double>(i - i0) / fs;
        for (const auto &p : parciales) {
            s[i] += p[1] * std::exp(-t / p[2]) * std::sin(2 * Pi * p[0] * t);
        }
    }
}

// Noise through a resonant band-pass whose centre follows `centro`(t).
void RuidoFiltrado(std::vector<double> &s, int fs, uint64_t semilla, double amplitud,
                   const std::function<double(double)> &centro,
                   const std::function<double(double)> &envolvente) {
    Azar azar(semilla);
    double bajo = 0, banda = 0;
    const double q = 0.35;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = static_cast<double>(i) / fs;
        const double f = 2 * std::sin(Pi * std::min(centro(t), fs / 6.0) / fs);
        const double x = azar.Entre(-1, 1);
        bajo += f * banda;
        const double alto = x - bajo - q * banda;
        banda += f * alto;
        s[i] += amplitud * envolvente(t) * banda;
    }
}

// Scales the clip so that its peak is `pico`.
void Normaliza(std::vector<double> &s, double pico) {
    double m = 1e-9;
    for (double v : s) {
        m = std::max(m, std::abs(v));
    }
    for (double &v : s) {
        v *= pico / m;
    }
}

// A soft buzz: the first harmonics, falling as 1/k^2, with a slow tremolo.
void Zumbido(std::vector<double> &s, int fs, double desde, double hasta, double f) {
    const int a = static_cast<int>(desde * fs),
              b = std::min(static_cast<int>(hasta * fs), static_cast<int>(s.size()));
    for (int i = a; i < b; ++i) {
        const double t = static_cast<double>(i - a) / fs, largo = hasta - desde;
        const double env = std::min({1.0, t / 0.03, (largo - t) / 0.12});
        double v = 0;
        for (int k = 1; k <= 6; ++k) {
            v += std::sin(2 * Pi * f * k * t) / (k * k);
        }
        s[i] += env * (1 + 0.15 * std::sin(2 * Pi * 5.5 * t)) * v;
    }
}

// A bell-like note of the melody.
void Campanilla(std::vector<double> &s, int fs, double inicio, double f, double fuerza) {
    Golpe(s, fs, inicio,
          {{{f, 0.6 * fuerza, 0.45}},
           {{2 * f, 0.25 * fuerza, 0.2}},
           {{3.01 * f, 0.1 * fuerza, 0.08}},
           {{0.5 * f, 0.12 * fuerza, 0.6}}});
}

} // namespace

MedidaClip MedidaDeClip(int clip) {
    static const std::array<MedidaClip, 13> tabla = {{{0, 0},
                                                      {11025, 2280},
                                                      {11025, 1008},
                                                      {11025, 2541},
                                                      {11025, 1379},
                                                      {11025, 1630},
                                                      {11025, 831},
                                                      {11025, 631},
                                                      {11025, 57705},
                                                      {8000, 15223},
                                                      {11025, 343},
                                                      {11025, 343},
                                                      {11025, 343}}};
    return (clip >= 1 && clip <= NumeroClips) ? tabla[clip] : MedidaClip{0, 0};
}

std::vector<double> SintetizaClip(int clip) {
    const MedidaClip m = MedidaDeClip(clip);
    const int fs = m.Frecuencia;
    std::vector<double> s(m.Bytes, 0.0);
    switch (clip) {
    case 1: // a soft wooden click with a short ring
        Golpe(s, fs, 0, {{{660, 0.5, 0.045}}, {{1980, 0.2, 0.012}}, {{2640, 0.1, 0.006}}});
        RuidoFiltrado(
            s, fs, 1, 0.5, [](double) { return 2500; },
            [](double t) { return std::exp(-t / 0.004); });
        Normaliza(s, 0.55);
        SuavizaExtremos(s, fs, 0.001, 0.06);
        break;
    case 2: // a tiny tick
        Golpe(s, fs, 0, {{{1320, 0.6, 0.014}}, {{2640, 0.15, 0.006}}});
        Normaliza(s, 0.4);
        SuavizaExtremos(s, fs, 0.001, 0.03);
        break;
    case 3: // two rising notes
        Golpe(s, fs, 0, {{{784, 0.5, 0.05}}, {{1568, 0.12, 0.02}}});
        Golpe(s, fs, 0.095, {{{1047, 0.55, 0.06}}, {{2094, 0.12, 0.02}}});
        Normaliza(s, 0.5);
        SuavizaExtremos(s, fs, 0.002, 0.06);
        break;
    case 4: // two falling notes, a closing sound
        Golpe(s, fs, 0, {{{880, 0.5, 0.03}}, {{1760, 0.1, 0.01}}});
        Golpe(s, fs, 0.05, {{{587, 0.55, 0.04}}, {{1174, 0.1, 0.015}}});
        Normaliza(s, 0.5);
        SuavizaExtremos(s, fs, 0.002, 0.04);
        break;
    case 5: // a lift: a rising whoosh
        RuidoFiltrado(
            s, fs, 5, 1, [](double t) { return 400 + 12000 * t; },
            [](double t) { return std::sin(Pi * std::min(1.0, t / 0.148)); });
        Normaliza(s, 0.45);
        SuavizaExtremos(s, fs, 0.005, 0.02);
        break;
    case 6: // a wooden tock
        Golpe(s, fs, 0, {{{520, 0.7, 0.013}}, {{1450, 0.35, 0.006}}, {{2900, 0.15, 0.003}}});
        RuidoFiltrado(
            s, fs, 6, 0.6, [](double) { return 1800; },
            [](double t) { return std::exp(-t / 0.002); });
        Normaliza(s, 0.7);
        SuavizaExtremos(s, fs, 0.0005, 0.02);
        break;
    case 7: // a page turned
        RuidoFiltrado(
            s, fs, 7, 1, [](double t) { return 3000 - 20000 * t; },
            [](double t) { return std::sin(Pi * std::min(1.0, t / 0.057)); });
        Normaliza(s, 0.35);
        SuavizaExtremos(s, fs, 0.003, 0.01);
        break;
    case 8: { // a short melody of bells, in a major pentatonic scale
        const double notas[] = {523.25, 659.25, 783.99, 880.00, 783.99, 659.25,
                                587.33, 659.25, 783.99, 1046.5, 880.00, 1046.5};
        const double tiempos[] = {0, 0.35, 0.7, 1.05, 1.4, 1.75, 2.1, 2.45, 2.8, 3.15, 3.5, 3.85};
        for (int k = 0; k < 12; ++k) {
            Campanilla(s, fs, tiempos[k], notas[k], k == 11 ? 1.2 : 0.9);
        }
        Campanilla(s, fs, 3.85, 523.25, 0.6);
        Normaliza(s, 0.6);
        SuavizaExtremos(s, fs, 0.002, 0.8);
        break;
    }
    case 9: // a low soft buzz in two falling steps: refusal
        Zumbido(s, fs, 0.0, 0.8, 196);
        Zumbido(s, fs, 0.9, 1.9, 147);
        Normaliza(s, 0.5);
        SuavizaExtremos(s, fs, 0.01, 0.05);
        break;
    default: // 10, 11, 12: a soft click
        Golpe(s, fs, 0, {{{1800, 0.5, 0.005}}, {{900, 0.4, 0.008}}});
        Normaliza(s, 0.45);
        SuavizaExtremos(s, fs, 0.0005, 0.008);
        break;
    }
    return s;
}

QByteArray MuestrasEnOchoBits(const std::vector<double> &muestras) {
    QByteArray b(static_cast<qsizetype>(muestras.size()), '\0');
    for (size_t i = 0; i < muestras.size(); ++i) {
        const long v = std::lround(128 + 126 * std::clamp(muestras[i], -1.0, 1.0));
        b[static_cast<qsizetype>(i)] = static_cast<char>(std::clamp(v, 1L, 254L));
    }
    return b;
}

namespace {

void Anade32(QByteArray &b, uint32_t v) {
    char c[4];
    qToLittleEndian(v, c);
    b.append(c, 4);
}

void Anade16(QByteArray &b, uint16_t v) {
    char c[2];
    qToLittleEndian(v, c);
    b.append(c, 2);
}

} // namespace

QByteArray GeneraWav(int clip) {
    const MedidaClip m = MedidaDeClip(clip);
    // Clips 10, 11 and 12 are one sound.
    const QByteArray datos = MuestrasEnOchoBits(SintetizaClip(clip >= 10 ? 10 : clip));
    const auto relleno = static_cast<uint32_t>(datos.size() % 2); // chunks end on even offsets
    QByteArray w;
    w.append("RIFF");
    Anade32(w, static_cast<uint32_t>(4 + 24 + 8 + datos.size() + relleno));
    w.append("WAVE");
    w.append("fmt ");
    Anade32(w, 16);
    Anade16(w, 1); // PCM
    Anade16(w, 1); // mono
    Anade32(w, m.Frecuencia);
    Anade32(w, m.Frecuencia); // bytes per second
    Anade16(w, 1);            // block
    Anade16(w, 8);            // bits
    w.append("data");
    Anade32(w, static_cast<uint32_t>(datos.size()));
    w.append(datos);
    if (relleno != 0) {
        w.append(char(128));
    }
    return w;
}
