// careta: the splash of the start, as plain state.
//
// The whole screen black, and in its middle a small panel, Pic_Todos, in
// which a title block scrolls upwards through the viewport Pic_Careta, one
// pixel a frame, twice or until a key. The block is copied each frame from
// three source pictures kept off the screen (Pic_Logo, Pic_Icono, Pic_Bmp);
// the viewport is never cleared, so each picture's black last row wipes the
// row it left behind.
//
// The platform shows the form modally: it fills the three sources, calls
// Form_Load with the screen's size, mirrors Pic_Todos and Pic_Careta onto
// the screen (Pic_Careta's drawings reach the screen at once through
// AlCambiar), runs Form_Activate, which returns when the splash has ended,
// and gives every key to Pic_Careta_KeyDown. The mouse does nothing.
#pragma once

#include <cstdint>

#include "core/Controles.h"

class FormCareta {
  public:
    FormCareta();
    FormCareta(const FormCareta &) = delete;
    FormCareta &operator=(const FormCareta &) = delete;

    // The form: borderless, maximised, black; its size is the screen's.
    int32_t Width = 0;
    int32_t Height = 0;

    // The panel, 323 x 209 with its thin flat border on its outermost
    // pixels; the frame about the viewport (Shape1, Line1, Line2) is drawn
    // into it. Its controls stand BORDE_TODOS pixels further in than their
    // places inside the panel say.
    CuadroImagen Pic_Todos;
    // The viewport, 287 x 150, at (15, 29) inside the panel: Left and Top
    // are its place on Pic_Todos's outer pixels.
    CuadroImagen Pic_Careta;
    // The sources, off the screen: 96 x 44, 32 x 32, 241 x 87.
    CuadroImagen Pic_Logo;
    CuadroImagen Pic_Icono;
    CuadroImagen Pic_Bmp;

    int16_t FinCareta = 0; // flag: the splash must end
    int16_t Pasadas = 0;   // the pass under way, 1 or 2
    // Whether the form has closed itself.
    bool Cerrada() const { return cerrada_; }

    // Loading: the form over the screen, the panel centred, the sources out
    // of sight.
    void Form_Load(int32_t anchoPantalla, int32_t altoPantalla);
    // The whole life of the form: frames until FinCareta, then it closes.
    void Form_Activate();
    // Any key ends the splash; the loop sees it at its next test.
    void Pic_Careta_KeyDown(int16_t KeyCode, int16_t Shift);

  private:
    void DibujaMarco();
    void DibujaFotograma(int32_t y);

    bool cerrada_ = false;
};

// The width of Pic_Todos's flat border.
constexpr int32_t BORDE_TODOS = 1;
constexpr int32_t ANCHO_TODOS = 323;
constexpr int32_t ALTO_TODOS = 209;
constexpr int32_t ANCHO_CARETA = 287;
constexpr int32_t ALTO_CARETA = 150;
