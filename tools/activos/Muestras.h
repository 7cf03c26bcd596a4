// The sample pictures that stand beside the executable: rich, detailed
// scenes, drawn from fixed seeds.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

struct Muestra {
    QString Nombre;     // file name, e.g. "CASA.JPG"
    QImage (*Genera)(); // draws the picture
};

// All of them, in the order of the program's list of files.
const std::vector<Muestra> &ListaMuestras();

QImage GeneraMuestra123();
QImage GeneraMuestraFormas();
QImage GeneraMuestraCampana();
QImage GeneraMuestraCasa();
QImage GeneraMuestraCatedral();
QImage GeneraMuestraFuente();
QImage GeneraMuestraPalmeras();
QImage GeneraMuestraPuerta();
QImage GeneraMuestraTranvia();
