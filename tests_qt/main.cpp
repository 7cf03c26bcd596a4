// The GUI tests run offscreen on a 1024 x 768 screen of 96 dpi, whatever
// the environment says, so that sizes and places are the same everywhere.
#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

#include "session/Enlaces.h"

int main(int argc, char *argv[]) {
    setenv("QT_QPA_PLATFORM", "offscreen:configfile=" TESELARI_PANTALLA_JSON, 1);
    QApplication aplicacion(argc, argv);
    EnlazaArriba();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
