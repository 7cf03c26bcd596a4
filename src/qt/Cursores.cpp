#include "qt/Cursores.h"

#include <QGuiApplication>
#include <QPixmap>

#include "core/Controles.h"

QString RutaCursor(const std::string &nombre) {
    return QStringLiteral(":/teselari/cursores/") + QString::fromStdString(nombre).toLower() +
           QStringLiteral(".png");
}

QCursor CursorDePuntero(int16_t puntero, const std::string &icono) {
    switch (puntero) {
    case PUNTERO_ESPERA:
        return QCursor(Qt::WaitCursor);
    case PUNTERO_PROHIBIDO:
        return QCursor(Qt::ForbiddenCursor);
    case PUNTERO_PREGUNTA:
        return QCursor(Qt::WhatsThisCursor);
    case PUNTERO_CUATRO_FLECHAS:
        return QCursor(Qt::SizeAllCursor);
    case PUNTERO_PROPIO: {
        const QPixmap mano(RutaCursor(icono));
        if (!mano.isNull()) {
            return QCursor(mano, HAND_PUNTO_X, HAND_PUNTO_Y);
        }
        return QCursor(Qt::ArrowCursor);
    }
    default:
        return QCursor(Qt::ArrowCursor);
    }
}

void AplicaPunteroPantalla(int16_t puntero) {
    static bool espera = false;
    const bool nueva = puntero == PUNTERO_ESPERA;
    if (nueva == espera) {
        return;
    }
    espera = nueva;
    if (espera) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}
