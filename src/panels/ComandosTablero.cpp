// The commands that act on the board and the model: 3, 4, 5 and 8.
#include "board/Barajar.h"
#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"
#include "panels/Ordenes.h"
#include "panels/Paneles.h"
#include "raster/Raster.h"
#include "services/Esperas.h"

using namespace PuzzGbl;

void MuestraOcultaModelo() {
    FormTeselari &f = teselari;
    PonEspera();
    MarcaBoton(3, true);
    EsperaTiempo(5);
    ModeloVisible = !ModeloVisible;
    CuadroImagen &modelo = f.Pic_Muestra;
    if (ModeloVisible) {
        // Back at the foot of the view, wherever it had been dragged.
        modelo.Move((AnchoPantalla - modelo.Ancho()) / 2.0,
                    f.BarraHor.Top - modelo.Alto() + f.BarraVer.Value());
    }
    modelo.Visible = ModeloVisible;
    BotonPulsado[3] = FALSO;
    EsperaTiempo(5);
    DibuBot(3, f.Pic_BotonSiempre[3]);
    QuitaEspera();
}

void BarajaDeNuevo() {
    MarcaBoton(4, true);
    PonEspera();
    Barajar(); // a new deal: the clock from 0, the game counts for the book
    ActualizaBSInfo();
    QuitaEspera();
    MarcaBoton(4, false);
}

void MuestraPiezasOcultas() {
    FormTeselari &f = teselari;
    MarcaBoton(5, true);
    PonEspera();
    // From the bottom of the pile up: each piece not at its place comes to
    // the top for a moment. Position p then holds the piece that lay above.
    int16_t p = NroPiezas;
    for (int32_t vez = 1; vez <= NroPiezas && p >= 1; ++vez) {
        if (PiezaEnSuSitio(OrdenPiezas[p])) {
            --p;
        } else {
            PiezaPrioritaria(p);
            if (TipoPieza != 0) {
                EnmascaraPieza(1);
            }
            MuestraPieza(f.Pic_Imagen, 1);
        }
        const Pieza &q = Piezas[OrdenPiezas[1]];
        BitBlt(f.Pic_Trabajo, q.X - MargenX, q.Y - MargenY, AnchoPiezaTotal, AltoPiezaTotal,
               f.Pic_Imagen, q.X - MargenX, q.Y - MargenY, SRCCOPY);
        EsperaTiempo(5);
    }
    QuitaEspera();
    MarcaBoton(5, false);
}

void MuestraTutor() {
    CuadroImagen &trabajo = teselari.Pic_Trabajo;
    MarcaBoton(8, true);
    PonEspera();
    const int16_t k = OrdenPiezas[1];
    if (!PiezaEnSuSitio(k)) {
        const Pieza q = Piezas[k];
        // An even number of inversions: both places end as they were.
        trabajo.DrawMode = DRAWMODE_INVIERTE;
        for (int vez = 0; vez < 8; ++vez) {
            trabajo.CajaLlena(q.X, q.Y, q.X + AnchoPieza, q.Y + AltoPieza, COLOR_NEGRO);
            trabajo.CajaLlena(q.XCorrecta, q.YCorrecta, q.XCorrecta + AnchoPieza,
                              q.YCorrecta + AltoPieza, COLOR_NEGRO);
            EsperaTiempo(22);
        }
        trabajo.DrawMode = DRAWMODE_COPIA;
    }
    QuitaEspera();
    MarcaBoton(8, false);
}
