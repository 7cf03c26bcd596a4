#include "core/FormTeselari.h"

#include "core/Arriba.h"

namespace {

// Colours and styles of one surface.
void Configura(CuadroImagen &s, Color fondo, Color tinta, bool tomaTamano = false) {
    s = CuadroImagen();
    s.PonBackColorSinPintar(fondo);
    s.ForeColor = tinta;
    s.FillColor = COLOR_NEGRO;
    s.TomaTamanoDeImagen = tomaTamano;
    s.Visible = false;
}

// A command button: grey, filled solid grey (the shadow of a pressed
// button is flooded with that brush), no entry until the mouse finds it
// can act.
void ConfiguraBoton(CuadroImagen &b) {
    Configura(b, 0xC0C0C0, COLOR_NEGRO);
    b.FillColor = 0xC0C0C0;
    b.RellenaFiguras = true;
    b.Move(0, 0, 56, 56);
    b.MousePointer = PUNTERO_PROHIBIDO;
}

} // namespace

FormTeselari::FormTeselari() {
    Inicializa();
}

void FormTeselari::Inicializa() {
    MousePointer = PUNTERO_NORMAL;
    Configura(Pic_Origin, COLOR_BLANCO, COLOR_BLANCO, true);
    Configura(Pic_W, COLOR_BLANCO, COLOR_BLANCO, true);
    Configura(Pic_Bitmap, COLOR_BLANCO, COLOR_NEGRO, true);
    Configura(Pic_Mascara, COLOR_BLANCO, COLOR_NEGRO);
    Pic_Mascara.RellenaFiguras = true;
    Configura(Pic_Temporal, COLOR_BLANCO, COLOR_NEGRO);
    Configura(Pic_PiezaMascara, COLOR_BLANCO, COLOR_NEGRO);
    Configura(Pic_PiezaImagen, COLOR_BLANCO, COLOR_NEGRO);
    Configura(Pic_PiezaFinal, COLOR_BLANCO, COLOR_NEGRO);
    Configura(Pic_PiezaColor, 0x00FF00, COLOR_NEGRO);
    Configura(Pic_Imagen, COLOR_BLANCO, COLOR_NEGRO);
    Configura(Pic_Trabajo, COLOR_BLANCO, COLOR_NEGRO);
    Pic_Trabajo.Visible = true;
    Configura(Pic_Muestra, COLOR_BLANCO, COLOR_BLANCO, true);
    Configura(Pic_Cuadrito, 0xC8D0D4, COLOR_NEGRO);
    Pic_Cuadrito.Move(0, 0, 20, 20);
    Pic_Cuadrito.Visible = true;

    BarraHor = BarraDesplazamiento();
    BarraVer = BarraDesplazamiento();
    BarraHor.Change = [] { Llama(Arriba().BarraHor_Change); };
    BarraVer.Change = [] { Llama(Arriba().BarraVer_Change); };

    Configura(Pic_BotonesSiempre, 0xC0C0C0, COLOR_NEGRO);
    Pic_BotonesSiempre.Visible = true;
    Configura(Pic_BSInfo, COLOR_BLANCO, 0xFF0000);
    Pic_BSInfo.Move(3, 0, 56, 23);
    Pic_BSInfo.Visible = true;
    // The count is framed: the sunken frame covers its outer two pixels, and
    // its text is centred in the width within.
    Pic_BSInfo.Borde = true;
    Configura(Pic_Cronome, 0xC0C0C0, 0xFF0000);
    Pic_Cronome.Move(0, 0, 62, 39);
    Pic_Cronome.Letra.Negrita = true;

    Configura(Pic_BotonesDerecho, 0xC0C0C0, COLOR_NEGRO);
    for (auto *panel : {&Pic_BotonSiempre, &Pic_BotonDerecho}) {
        for (CuadroImagen &b : *panel) {
            ConfiguraBoton(b);
        }
    }
    // The pixels of the strip come from the platform; only its size and
    // background are the form's.
    Configura(Pic_BmpBoton, 0xC0C0C0, COLOR_NEGRO);
    Pic_BmpBoton.Move(0, 0, 638, 50);
}
