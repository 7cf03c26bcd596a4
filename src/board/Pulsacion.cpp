// Pic_Trabajo_MouseDown: the right button opens the pop-up panel, the left
// one picks the piece under the mouse.
#include <cstdint>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "board/Seleccion.h"
#include "core/Arriba.h"
#include "core/Cronometro.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

// While the game moves pieces by itself the left button does nothing here.
// A left press during a drop (its sound lets events through, its end may
// show a modal message) is refused, so that the drop puts its piece back into
// Pic_Imagen before another one is lifted.
void Pic_Trabajo_MouseDown(int16_t boton, int16_t, float x, float y) {
    if (boton != 1 || ModoResolver != 0 || ModoOrdenar != 0) {
        if (boton == 2) {
            Llama(Arriba().DibujaBotonesDerecho, x, y);
        }
        return;
    }
    if (PiezaSoltandose != 0) {
        return;
    }
    if (ModoColocadas != 0) {
        Llama(Arriba().PulsaBoton, int16_t{6}); // ends the coloured view
    }
    if (PuzzleCompleto != 0) {
        PuzzleCompleto = FALSO;
        RecuperaContornos();
    }
    const int16_t i = PiezaTocada(x, y);
    if (i != 0) {
        PiezaPrioritaria(i);
        LevantaPieza(Redondea(x), Redondea(y));
        ReproduceSonido(Clips::PiezaLevantada);
        teselari.Pic_Trabajo.MousePointer = PUNTERO_CUATRO_FLECHAS;
        CursorTrabajo = 0;
        ArrancaCronometro(); // also after the end of a game
    }
    CuadroImagen &derecho = teselari.Pic_BotonesDerecho;
    if (derecho.Visible) {
        derecho.Visible = false;
        if (i != 0) {
            // The board at once, with the piece in the hand on it.
            Pic_Trabajo_Paint();
            if (TipoPieza != 0) {
                EnmascaraPieza(1);
            }
            MuestraPieza(teselari.Pic_Trabajo, 1);
        }
    }
}
