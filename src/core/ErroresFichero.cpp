#include "core/ErroresFichero.h"

#include <cerrno>

namespace {

// What both kinds of failure share; ENOENT and ENOTDIR are told apart by
// the caller.
int16_t ErrorComun(int e) {
    switch (e) {
    case ENOMEM:
        return ERROR_MEMORIA;
    case EIO:
    case ENXIO:
    case ENODEV:
    case ENOMEDIUM:
    case ESTALE:
        return ERROR_UNIDAD_NO_PREPARADA;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
        return ERROR_RUTA_NO_ENCONTRADA;
    default:
        return ERROR_ACCESO;
    }
}

} // namespace

int16_t ErrorDeCarpeta(int e) {
    return e == ENOENT ? ERROR_RUTA_NO_ENCONTRADA : ErrorComun(e);
}

int16_t ErrorDeFichero(int e) {
    return e == ENOENT ? ERROR_FICHERO_NO_ENCONTRADO : ErrorComun(e);
}

std::string TextoErrorIni(int16_t numero, const std::string &unidad) {
    switch (numero) {
    case ERROR_MEMORIA:
        return "INI ERROR 7 : Insuficiente memoria";
    case ERROR_FICHERO_NO_ENCONTRADO:
        return "No se encuentra el fichero de inicialización con los datos de la última sesión. "
               "Cargue desde el disco una imagen que sirva de fondo para el puzzle.";
    case ERROR_UNIDAD_NO_PREPARADA: {
        std::string texto = "INI ERROR 68: Unidad ";
        texto += unidad;
        texto += ": no preparada";
        return texto;
    }
    case ERROR_RUTA_NO_ENCONTRADA:
        return "INI ERROR 76: No existe el fichero de inicialización";
    default:
        return std::string("INI ERROR ").append(std::to_string(numero));
    }
}
