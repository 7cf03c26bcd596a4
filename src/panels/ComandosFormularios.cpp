// The commands that leave the board for a form: 1 help, 2 customisation,
// 10 history book. The clock stops while the player is away from the board
// and starts again afterwards, whatever state it had.
//
// The help window isn't modal: the clock runs again as soon as it is up.
#include "core/Arriba.h"
#include "core/Cronometro.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"
#include "services/Ayuda.h"

using namespace PuzzGbl;

void AbreAyuda() {
    MarcaBoton(1, true);
    ParaCronometro();
    MuestraAyuda(TemasAyuda::Contenido); // the book opens on its contents
    ArrancaCronometro();
    MarcaBoton(1, false);
}

// AbrirFic says on closing whether the puzzle must be dealt anew; the
// buttons' allocation may have changed whatever else did.
void PersonalizaAplicacion() {
    PonEspera();
    MarcaBoton(2, true);
    ParaCronometro();
    PuzzleCambiado = FALSO;
    Llama(Arriba().AbreDialogoAbrirFic);
    if (PuzzleCambiado != FALSO) {
        PreparaBitmap();
    }
    DibujaBotonesSiempre();
    ArrancaCronometro();
    MarcaBoton(2, false);
    QuitaEspera();
}

void AbreHistorico() {
    MarcaBoton(10, true);
    PonEspera();
    ParaCronometro();
    Llama(Arriba().AbreLibroHistorico); // its loading puts the default pointer back
    ArrancaCronometro();
    MarcaBoton(10, false);
}
