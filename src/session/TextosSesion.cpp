#include "session/TextosSesion.h"

#include "core/ErroresFichero.h"

Mensaje MensajeImagenRechazada(int64_t ancho, int64_t alto) {
    std::string tamano = "(";
    tamano += ConBlanco(ancho);
    tamano += " x";
    tamano += ConBlanco(alto);
    tamano += " pixels ) no está dentro de los límites permitidos:";
    return {"Imagen no válida",
            UneLineas({"El  tamaño  de  la  imagen  que  está  intentando  cargar", tamano, "",
                       "               Entre 320 y 1.024 pixels de anchura",
                       "               Entre 240 y 768 pixels de altura"}),
            6, 1};
}

Mensaje MensajeImagenPerdida(const std::string &fichero) {
    return {"Cargar Imagen",
            UneLineas({"No  se  encuentra  la  imagen  utilizada  en  la  última  sesión:", "",
                       LineaQueCabe(fichero), "",
                       "Cargue  desde  el  disco  una  imagen  que  sirva  de  fondo",
                       "para  el  puzzle."}),
            6, 1};
}

Mensaje MensajeErrorIni(int16_t numero, const std::string &unidad) {
    return {"Error leyendo fichero de datos iniciales", TextoErrorIni(numero, unidad), 3, 1};
}
