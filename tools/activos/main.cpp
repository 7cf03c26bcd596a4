// teselari_activos: draws and synthesises the game's assets into a folder
// (by default assets/): the button strip, the chronometer face, the hand
// pointers, the sound clips and the sample pictures.
#include <QGuiApplication>
#include <cstring>
#include <iostream>

#include "Escritura.h"

int main(int argc, char **argv) {
    // Fonts without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QString carpeta = "assets";
    bool conMuestras = true;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--sin-muestras") == 0) {
            conMuestras = false;
        } else if (std::strcmp(argv[i], "--ayuda") == 0) {
            std::cout << "usage: teselari_activos [--sin-muestras] [folder]\n";
            return 0;
        } else {
            carpeta = QString::fromLocal8Bit(argv[i]);
        }
    }
    return EscribeActivos(carpeta, conMuestras, std::cout) ? 0 : 1;
}
