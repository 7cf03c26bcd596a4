#include "Muestras.h"

const std::vector<Muestra> &ListaMuestras() {
    static const std::vector<Muestra> lista = {
        {"123.BMP", GeneraMuestra123},
        {"FORMAS.BMP", GeneraMuestraFormas},
        {"PALMERAS.JPG", GeneraMuestraPalmeras},
    };
    return lista;
}
