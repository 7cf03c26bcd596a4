#include "session/SesionImagen.h"

#include <cmath>

#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

constexpr int64_t ANCHO_MINIMO = 320, ANCHO_MAXIMO = 1024;
constexpr int64_t ALTO_MINIMO = 240, ALTO_MAXIMO = 768;

// The first sample pictures of the list of the program's files.
constexpr int PRIMERA_MUESTRA = 2;

} // namespace

int64_t ConZoom(int64_t lado, int16_t zoom) {
    return static_cast<int64_t>(std::floor(static_cast<double>(lado) * zoom / 100.0));
}

bool TamanoPermitido(int64_t ancho, int64_t alto) {
    return ancho >= ANCHO_MINIMO && ancho <= ANCHO_MAXIMO && alto >= ALTO_MINIMO &&
           alto <= ALTO_MAXIMO;
}

int64_t AnchoConZoom(int16_t zoom) {
    return ConZoom(teselari.Pic_W.Ancho(), zoom);
}

int64_t AltoConZoom(int16_t zoom) {
    return ConZoom(teselari.Pic_W.Alto(), zoom);
}

void PasaImagenAOrigen(int32_t ancho, int32_t alto) {
    FormTeselari &f = teselari;
    f.Pic_Origin.CambiaTamano(ancho, alto);
    SetStretchBltMode(f.Pic_Origin, COLORONCOLOR);
    StretchBlt(f.Pic_Origin, 0, 0, ancho, alto, f.Pic_W, 0, 0, f.Pic_W.Ancho(), f.Pic_W.Alto(),
               SRCCOPY);
    f.Pic_W.CambiaTamano(0, 0);
}

void DejaOrigenEnBlanco() {
    teselari.Pic_Origin.CambiaTamano(320, 240);
    teselari.Pic_Origin.QuitaImagen();
}

void CargaImagenDeMuestra() {
    if (ImagenValida != FALSO) {
        return;
    }
    std::string carpeta = DirectorioPrograma();
    if (carpeta.empty() || carpeta.back() != '/') {
        carpeta += '/';
    }
    for (int i = PRIMERA_MUESTRA; i < NRO_FICHEROS_PROGRAMA; ++i) {
        const std::string fichero = carpeta + FicherosPrograma[i];
        teselari.Pic_W.QuitaImagen();
        const CargaDeImagen carga = CargaImagen(fichero, teselari.Pic_W);
        if (!carga.Leida() || !TamanoPermitido(carga.Ancho, carga.Alto)) {
            continue;
        }
        PasaImagenAOrigen(static_cast<int32_t>(carga.Ancho), static_cast<int32_t>(carga.Alto));
        Zoom = 100;
        FicheroImagen = fichero;
        NombreImagen = FicherosPrograma[i];
        ImagenValida = VERDADERO;
        return;
    }
    teselari.Pic_W.CambiaTamano(0, 0);
}
