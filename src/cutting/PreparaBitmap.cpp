// From the picture and the settings to a puzzle ready to be dealt.
#include <algorithm>

#include "core/Arriba.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "cutting/Corte.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

constexpr int32_t GRUESO_BARRA = 16;
// The work area exceeds a large picture by this much in each direction.
constexpr int32_t HOLGURA_TRABAJO = 200;

// The bars along the bottom and the right of the screen, and the square
// where they meet.
void ColocaBarras() {
    FormTeselari &f = teselari;
    f.BarraHor.Height = GRUESO_BARRA;
    f.BarraVer.Width = GRUESO_BARRA;
    f.BarraHor.Left = 0;
    f.BarraHor.Top = AltoPantalla - f.BarraHor.Height;
    f.BarraHor.Width = AnchoPantalla - f.BarraVer.Width;
    f.BarraVer.Left = AnchoPantalla - f.BarraVer.Width;
    f.BarraVer.Top = 0;
    f.BarraVer.Height = AltoPantalla - f.BarraHor.Height;
    f.Pic_Cuadrito.Move(f.BarraVer.Left, f.BarraHor.Top);
}

// The range of one bar: what the work area needs beyond the room on the
// screen. An excess of a few pixels still gets a range of 10.
void AjustaRango(BarraDesplazamiento &barra, int32_t necesita, int32_t sitio) {
    barra.PonMax(0);
    if (necesita > sitio) {
        barra.PonValue(0);
        barra.PonMax(std::max(necesita - sitio, 10));
        barra.LargeChange = barra.Max() / 10;
    }
}

// The model: the clean picture at half size, centred above the lower bar.
void PreparaModelo() {
    FormTeselari &f = teselari;
    CuadroImagen &m = f.Pic_Muestra;
    m.Visible = false;
    m.AsignaImagen(f.Pic_Origin);
    m.CambiaTamano(f.Pic_Bitmap.Ancho() / 2.0, f.Pic_Bitmap.Alto() / 2.0);
    SetStretchBltMode(m, COLORONCOLOR);
    StretchBlt(m, 0, 0, m.Ancho(), m.Alto(), f.Pic_Bitmap, 0, 0, f.Pic_Bitmap.Ancho(),
               f.Pic_Bitmap.Alto(), SRCCOPY);
    m.Move((AnchoPantalla - m.Ancho()) / 2.0, f.BarraHor.Top - m.Alto() + f.BarraVer.Value());
    m.Visible = ModeloVisible;
}

// The work area fills the visible screen and, for a large picture, exceeds
// it by the spare space in each direction.
void PreparaTrabajo() {
    FormTeselari &f = teselari;
    int32_t w = f.BarraVer.Left, h = f.BarraHor.Top;
    if (f.Pic_Bitmap.Ancho() + HOLGURA_TRABAJO > w) {
        w = f.Pic_Bitmap.Ancho() + HOLGURA_TRABAJO;
    }
    if (f.Pic_Bitmap.Alto() + HOLGURA_TRABAJO > h) {
        h = f.Pic_Bitmap.Alto() + HOLGURA_TRABAJO;
    }
    const Color fondo = static_cast<Color>(ColoresFondo[ColorFondo]);
    for (CuadroImagen *s : {&f.Pic_Trabajo, &f.Pic_Imagen}) {
        s->Move(0, 0, w, h);
        s->PonBackColorSinPintar(fondo);
        s->Cls();
    }
}

} // namespace

void ColocaPiezasEnCasa() {
    const int32_t n = PiezasPorLado;
    const int32_t mitad = Redondea(NroPiezas / 2.0);
    const int32_t capas = TipoPieza > 1 ? 2 : 1;
    for (int32_t fila = 0; fila < n; ++fila) {
        AuxFila = static_cast<float>(fila);
        for (int32_t col = 0; col < n; ++col) {
            AuxColumna = static_cast<float>(col);
            const int32_t k = n * n - (n * fila + col);
            for (int32_t j = 0; j < capas; ++j) {
                const int32_t i = mitad * j + k;
                if (i < 1 || i > NroPiezas) {
                    continue;
                }
                Pieza &p = Piezas[i];
                p.XCorrecta = AnchoPieza * col;
                p.YCorrecta = AltoPieza * fila;
                p.X = p.XCorrecta;
                p.Y = p.YCorrecta;
                OrdenPiezas[i] = static_cast<int16_t>(i);
            }
        }
    }
}

void PreparaBitmap() {
    FormTeselari &f = teselari;
    CalculaPiezas();
    f.Pic_Bitmap.Move(0, 0);
    f.Pic_Bitmap.AsignaImagen(f.Pic_Origin);
    ColorContraste = ColorFondo > 2 ? 0xFFFFFF : 0x000000;
    f.Pic_Bitmap.ForeColor = static_cast<Color>(ColorContraste);
    ColocaBarras();
    AjustaRango(f.BarraHor, f.Pic_Bitmap.Ancho() + HOLGURA_TRABAJO,
                AnchoPantalla - f.BarraVer.Width);
    AjustaRango(f.BarraVer, f.Pic_Bitmap.Alto() + HOLGURA_TRABAJO,
                AltoPantalla - f.BarraHor.Height);
    PreparaModelo();
    f.Pic_Mascara.Move(0, 0, AnchoPuzzle, AltoPuzzle);
    f.Pic_Mascara.Cls();
    PreparaTrabajo();
    CalculaMargenes();
    if (TipoPieza == 1) {
        ConstruyePlantillas();
    }
    for (CuadroImagen *s : {&f.Pic_PiezaImagen, &f.Pic_PiezaMascara, &f.Pic_PiezaFinal}) {
        s->Move(0, 0, AnchoPiezaTotal, AltoPiezaTotal);
    }
    if (TipoPieza < 2) {
        DibujaCortesSimples();
    } else {
        DibujaPiezasDobles();
    }
    Piezas.assign(static_cast<size_t>(NroPiezas) + 1, Pieza{});
    OrdenPiezas.assign(static_cast<size_t>(NroPiezas) + 1, 0);
    if (SesionRestaurando == 0) {
        ColocaPiezasEnCasa();
        Llama(Arriba().Barajar);
    }
}
