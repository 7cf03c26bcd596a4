// ReproductorSonidos: the twelve clips of the game, played with Qt
// Multimedia from the resources.
//
// One QSoundEffect per clip, made the first time the clip is asked for. A
// new clip stops the one still playing; nothing ever waits for a clip to
// end (without an audio device the end is never reported). Silent when
// there is no device or the clip is missing.
#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <cstdint>

class QSoundEffect;

class ReproductorSonidos : public QObject {
    Q_OBJECT
  public:
    explicit ReproductorSonidos(QObject *padre = nullptr);

    // Starts clip 1..12; other numbers are ignored.
    void Reproduce(int16_t clip);
    // The clip started last (0: none yet).
    int16_t Ultimo() const { return ultimo_; }

  private:
    std::array<QSoundEffect *, 13> efectos_{};
    int16_t ultimo_ = 0;
};

// The resource URL of clip n: "qrc:/sonidos/n.wav".
QString RutaSonido(int16_t clip);

// The one player of the program, for the platform's sound hook.
void PonReproductor(ReproductorSonidos *r);
void ReproduceClip(int16_t clip);
