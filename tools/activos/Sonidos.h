// The twelve sound clips: complete RIFF WAVE files, PCM, mono, 8 bits per
// sample, synthesised.
#pragma once

#include <QByteArray>
#include <vector>

struct MedidaClip {
    int Frecuencia; // samples per second
    int Bytes;      // length of the data chunk
};

constexpr int NumeroClips = 12;

// The rate and data length of clip 1..12.
MedidaClip MedidaDeClip(int clip);

// The samples of a clip in [-1, 1], as many as its data bytes.
std::vector<double> SintetizaClip(int clip);

// Samples in [-1, 1] to unsigned bytes around 128, never 0 or 255.
QByteArray MuestrasEnOchoBits(const std::vector<double> &muestras);

// The whole WAVE file of a clip.
QByteArray GeneraWav(int clip);
