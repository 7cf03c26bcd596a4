// Historic: the mouse on the book, and the player's name.
#include "core/PuzzGbl.h"
#include "history/FormHistoric.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// The y ranges of the four tabs, by section.
constexpr struct {
    int32_t arriba, abajo;
} PESTANAS[5] = {{0, 0}, {30, 96}, {102, 168}, {174, 240}, {246, 312}};

// The section whose tab holds the point, on either margin; 0 for none.
int16_t PestanaEn(double x, double y) {
    if (!((x > 2 && x < 29) || (x > 511 && x < 538))) {
        return 0;
    }
    for (int16_t s = 1; s <= 4; ++s) {
        if (y >= PESTANAS[s].arriba && y <= PESTANAS[s].abajo) {
            return s;
        }
    }
    return 0;
}

bool EsquinaCierre(double x, double y) {
    return y >= 5 && y <= 27 && x > 3 && x < 27;
}

bool EsquinaAtras(double x, double y) {
    return y >= 318 && y <= 334 && x > 29 && x < 55;
}

bool EsquinaAdelante(double x, double y) {
    return y >= 318 && y <= 334 && x > 485 && x < 511;
}

} // namespace

void FormHistoric::AbreSeccionPorPestana(int16_t seccion) {
    ContadorPagina = 0;
    MuestraSeccion(seccion);
}

// Any button. The return arrow closes the book; a folded corner turns a
// page; a tab opens its section at its first spread.
void FormHistoric::Form_MouseDown(int16_t, int16_t, float X, float Y) {
    if (EsquinaCierre(X, Y)) {
        descargado_ = true;
        ReproduceSonido(Clips::SalidaDialogo);
        return;
    }
    const bool atras = EsquinaAtras(X, Y);
    const bool adelante = !atras && EsquinaAdelante(X, Y);
    const int16_t pestana = atras || adelante ? 0 : PestanaEn(X, Y);
    if (!atras && !adelante && pestana == 0) {
        return;
    }
    teselari.MousePointer = PUNTERO_ESPERA;
    ReproduceSonido(Clips::Seccion);
    if (atras) {
        PaginaAnterior();
    } else if (adelante) {
        PaginaSiguiente();
    } else {
        AbreSeccionPorPestana(pestana);
    }
    teselari.MousePointer = PUNTERO_NORMAL;
}

// The pointing hand over what can be pressed: the return arrow, the two
// folded corners and the tabs (a tab under a patch gets no move at all).
void FormHistoric::Form_MouseMove(int16_t, int16_t, float X, float Y) {
    const bool caliente =
        (X >= 4 && X <= 26 && Y >= 5 && Y <= 27) ||
        (Y >= 318 && Y <= 334 && ((X >= 30 && X <= 54) || (X >= 486 && X <= 510))) ||
        PestanaEn(X, Y) != 0;
    if (caliente && Formulario.MousePointer == PUNTERO_NORMAL) {
        PonCursor(Formulario, "ManoIndice");
    } else if (!caliente && Formulario.MousePointer != PUNTERO_NORMAL) {
        Formulario.MousePointer = PUNTERO_NORMAL;
        Formulario.MouseIcon.clear();
    }
}

void FormHistoric::Pic_Tapa_MouseMove(int16_t, int16_t, int16_t, float, float) {
    if (Formulario.MousePointer != PUNTERO_NORMAL) {
        Formulario.MousePointer = PUNTERO_NORMAL;
        Formulario.MouseIcon.clear();
    }
}

// The name is typed here and nowhere else.
void FormHistoric::Tex_Nombre_Change() {
    NombreJugador = CadenaFija(Tex_Nombre.Text, 9);
}
