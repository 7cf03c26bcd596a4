// AbrirFic's two ways out: Accept compares with the snapshot and tells the
// game what changed; Reject puts the snapshot back.
#include <filesystem>

#include "core/PuzzGbl.h"
#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/GuardaBmp.h"
#include "panels/Paneles.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

bool CambiaElPuzzle(const FormAbrirFic &f) {
    return FicheroImagen != f.CopiaFicheroImagen || PiezasPorLado != f.CopiaPiezasPorLado ||
           TipoPieza != f.CopiaTipoPieza || Zoom != f.CopiaZoom;
}

} // namespace

// Without a usable picture the dialog stays: the chosen file (the first one
// when none is chosen) is evaluated again, which either tells the player
// once more why it can't serve or makes it valid for the next press.
// Selecting the first entry runs File1_Click by itself, so it is not run a
// second time then.
void FormAbrirFic::EligePrimerFichero() {
    if (File1.ListCount() > 0 && File1.ListIndex() == -1) {
        File1.PonListIndex(0);
    } else if (File1.ListIndex() != -1) {
        File1_Click();
    }
}

void FormAbrirFic::Pic_Si_MouseDown(int16_t, int16_t, float, float) {
    if (ImagenValida == FALSO) {
        EligePrimerFichero();
        return;
    }
    FormTeselari &f = teselari;
    f.MousePointer = PUNTERO_ESPERA;
    ReproduceSonido(Clips::SalidaDialogo);
    PuzzleCambiado = ColorFondo != CopiaColorFondo ? VERDADERO : FALSO;
    if (CambiaElPuzzle(*this)) {
        PuzzleCambiado = VERDADERO;
        if (NombreImagen == "teseport.bmp") {
            // A folder that can't be written keeps the old file, if any.
            GuardaBmp(Pic_Comprobar, "teseport.bmp");
        }
        f.BarraVer.PonValue(0);
        f.BarraHor.PonValue(0);
        PartidaValida = VERDADERO;
        SegundosCronometro = 0;
        f.Pic_Cronome.Cls();
    }
    if (FactorPegado != CopiaFactorPegado) {
        CalculaDificultad();
        PartidaValida = FALSO;
    }
    f.Pic_Cronome.Visible = Cronometro != 2;
    Descarga();
}

void FormAbrirFic::Pic_No_MouseDown(int16_t, int16_t, float, float) {
    if (ImagenValida == FALSO) {
        EligePrimerFichero();
        return;
    }
    if (CopiaImagenValida == FALSO) {
        // Opened without a usable picture: there is no old game to go back to.
        return;
    }
    teselari.MousePointer = PUNTERO_ESPERA;
    ReproduceSonido(Clips::SalidaDialogo);
    teselari.Pic_Origin.AsignaImagen(Pic_OriginMem);
    FicheroImagen = CopiaFicheroImagen;
    NombreImagen = CopiaNombreImagen;
    PiezasPorLado = CopiaPiezasPorLado;
    TipoPieza = CopiaTipoPieza;
    PiezasDobles = TipoPieza > 1 ? 1 : 0;
    BotonEnSiempre = CopiaBotonEnSiempre;
    BotonEnDerecho = CopiaBotonEnDerecho;
    Sonido = CopiaSonido;
    Cronometro = CopiaCronometro;
    Pistas = CopiaPistas;
    ActualizaPistas();
    ColorFondo = CopiaColorFondo;
    FactorPegado = CopiaFactorPegado;
    Velocidad = CopiaVelocidad;
    PuzzleCambiado = FALSO;
    Zoom = CopiaZoom;
    CalculaPiezas();
    Descarga();
    teselari.MousePointer = PUNTERO_NORMAL;
}
