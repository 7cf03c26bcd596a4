#include "qt/ReproductorSonidos.h"

#include <QSoundEffect>
#include <QUrl>

namespace {
ReproductorSonidos *reproductor = nullptr;
}

QString RutaSonido(int16_t clip) {
    return QStringLiteral("qrc:/teselari/sonidos/%1.wav").arg(clip);
}

ReproductorSonidos::ReproductorSonidos(QObject *padre) : QObject(padre) {}

void ReproductorSonidos::Reproduce(int16_t clip) {
    if (clip < 1 || clip > 12) {
        return;
    }
    if (ultimo_ != 0 && efectos_[ultimo_] != nullptr) {
        efectos_[ultimo_]->stop();
    }
    QSoundEffect *&efecto = efectos_[clip];
    if (efecto == nullptr) {
        efecto = new QSoundEffect(this);
        efecto->setSource(QUrl(RutaSonido(clip)));
    }
    efecto->play();
    ultimo_ = clip;
}

void PonReproductor(ReproductorSonidos *r) {
    reproductor = r;
}

void ReproduceClip(int16_t clip) {
    if (reproductor != nullptr) {
        reproductor->Reproduce(clip);
    }
}
