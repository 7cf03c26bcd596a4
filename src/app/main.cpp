// Teselari: the game starts with the load of its main form.
#include <QApplication>

#include "qt/Arranque.h"

int main(int argc, char *argv[]) {
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(QStringLiteral("teselari"));
    PonIconoYEntradaEscritorio();
    Form_Load();
    if (ProgramaTerminado()) {
        return 0;
    }
    return QApplication::exec();
}
