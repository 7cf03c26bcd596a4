#include "Muestras.h"

const std::vector<Muestra> &ListaMuestras() {
    static const std::vector<Muestra> lista = {
        {"123.BMP", GeneraMuestra123},           {"FORMAS.BMP", GeneraMuestraFormas},
        {"CAMPANA.JPG", GeneraMuestraCampana},   {"CASA.JPG", GeneraMuestraCasa},
        {"CATEDRAL.JPG", GeneraMuestraCatedral}, {"FUENTE.JPG", GeneraMuestraFuente},
        {"PALMERAS.JPG", GeneraMuestraPalmeras}, {"PUERTA.JPG", GeneraMuestraPuerta},
        {"TRANVIA.JPG", GeneraMuestraTranvia},
    };
    return lista;
}
