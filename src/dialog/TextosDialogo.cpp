#include "dialog/TextosDialogo.h"

#include "core/PuzzGbl.h"

using PuzzGbl::NuevaLinea;

Mensaje MensajeImagenNoValida(int64_t w, int64_t h) {
    const std::string &nl = NuevaLinea;
    return {"Imagen no válida",
            "La  imagen  que  acaba  de  seleccionar  (" + ConBlanco(w) + " x" + ConBlanco(h) +
                " pixels)" + nl +
                "no puede ser utilizada en Teselari.  Aunque se le aplique el máximo   valor   "
                "del   Zoom   no  entra  dentro  de  los  límites permitidos:" +
                nl + nl + "               Entre 320 y 1.024 pixels de anchura." + nl +
                "               Entre 240 y 768 pixels de altura." + nl + nl +
                "Seleccione otra imagen que sirva de fondo para el puzzle.",
            9, 1};
}

Mensaje MensajeFueraDeLimites(int64_t w, int64_t h) {
    const std::string &nl = NuevaLinea;
    return {"Imagen fuera de límites",
            "El   tamaño   de   la   imagen   que   acaba  de   seleccionar" + nl + "(" +
                ConBlanco(w) + " x" + ConBlanco(h) +
                " pixels ) no está dentro de los límites permitidos:" + nl + nl +
                "               Entre 320 y 1.024 pixels de anchura." + nl +
                "               Entre 240 y 768 pixels de altura." + nl + nl +
                "Se ha modificado el Zoom para adaptar la imagen a dichos límites.",
            8, 1};
}

Mensaje MensajeLimiteZoom() {
    const std::string &nl = NuevaLinea;
    return {"Imagen fuera de límites",
            "Si se aplica este zoom a la imagen que ha seleccionado" + nl +
                "se superan los límites permitidos:" + nl + nl +
                "               Entre 320 y 1.024 pixels de anchura" + nl +
                "               Entre 240 y 768 pixels de altura" + nl,
            6, 1};
}

Mensaje MensajeNombreNoEscribible() {
    return {"Imagen no válida",
            UneLineas({"El nombre de la imagen que acaba de seleccionar, o el de su",
                       "carpeta, tiene comillas (\") o un salto de línea, que no se",
                       "pueden guardar en el fichero de inicialización.", "",
                       "Cambie el nombre o seleccione otra imagen."}),
            5, 1};
}
