#include "panels/PanelModelo.h"

#include "core/Controles.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "panels/ArrastrePanel.h"

using namespace PuzzGbl;

void Pic_Muestra_MouseDown(int16_t boton, int16_t, float x, float y) {
    if (boton != 1) {
        return;
    }
    CuadroImagen &modelo = teselari.Pic_Muestra;
    AnteriorX = Redondea(x);
    AnteriorY = Redondea(y);
    EmpiezaArrastrePanel(modelo.Left, modelo.Top, modelo.Ancho(), modelo.Alto());
    modelo.MousePointer = PUNTERO_CUATRO_FLECHAS;
}

void Pic_Muestra_MouseMove(int16_t boton, int16_t, float x, float y) {
    CuadroImagen &modelo = teselari.Pic_Muestra;
    if (boton == 1) {
        // The model itself stays; only its frame follows the mouse.
        MueveMarcoPanel(
            Redondea(static_cast<float>(modelo.Left) + x - static_cast<float>(AnteriorX)),
            Redondea(static_cast<float>(modelo.Top) + y - static_cast<float>(AnteriorY)));
    }
    if (modelo.MousePointer == PUNTERO_NORMAL && boton == 0) {
        PonCursor(modelo, "ManoBlanca");
    }
}

void Pic_Muestra_MouseUp(int16_t boton, int16_t, float, float) {
    if (boton != 1) {
        return;
    }
    CuadroImagen &modelo = teselari.Pic_Muestra;
    TerminaArrastrePanel();
    modelo.Move(PanelX, PanelY);
    modelo.MousePointer = PUNTERO_NORMAL;
}
