// The main form `teselari` as plain state: its picture boxes and scroll bars.
//
// Every picture box keeps the colours and styles the board needs of it: what
// background it clears to, what colour its lines take, whether it fills
// closed shapes and flood fills solid black, and whether it takes the size
// of a picture assigned to it.
#pragma once

#include <array>

#include "core/Controles.h"

struct FormTeselari {
    FormTeselari();

    // Puts every control back as the form is loaded, before any picture.
    void Inicializa();

    // The pointer of the whole screen (0 default, 11 hourglass).
    int16_t MousePointer = 0;

    // The picture and the cut.
    CuadroImagen Pic_Origin;   // the picture at its zoom
    CuadroImagen Pic_W;        // the picture file at its own size, while it is scaled
    CuadroImagen Pic_Bitmap;   // the picture with the cut lines
    CuadroImagen Pic_Mascara;  // the figures of a double puzzle, black on white
    CuadroImagen Pic_Temporal; // the two templates of an irregular puzzle

    // One piece at a time.
    CuadroImagen Pic_PiezaMascara;
    CuadroImagen Pic_PiezaImagen;
    CuadroImagen Pic_PiezaFinal;
    CuadroImagen Pic_PiezaColor;

    // The board.
    CuadroImagen Pic_Imagen;  // the board in memory
    CuadroImagen Pic_Trabajo; // the work area the player sees
    CuadroImagen Pic_Muestra; // the model, half size, a child of Pic_Trabajo
    CuadroImagen Pic_Cuadrito;
    BarraDesplazamiento BarraHor;
    BarraDesplazamiento BarraVer;

    // The panels the board has to know of.
    CuadroImagen Pic_BotonesSiempre;
    CuadroImagen Pic_BSInfo;
    CuadroImagen Pic_Cronome;

    // The pop-up panel of the right button, hidden until asked for.
    CuadroImagen Pic_BotonesDerecho;
    // One button per command in each panel, index = command (1..11).
    std::array<CuadroImagen, 12> Pic_BotonSiempre;
    std::array<CuadroImagen, 12> Pic_BotonDerecho;
    // The strip of button images, 638 x 50, never on the screen: image i
    // is the 48 x 48 square at ((i - 1) x 49 + 1, 1).
    CuadroImagen Pic_BmpBoton;
};
