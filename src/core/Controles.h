// The controls of the forms as plain state.
//
// The logic reads and writes its controls here; the Qt layer mirrors this
// state onto widgets and feeds events back. So the whole board and the
// dialogs run and are tested without a window, on any screen size a test
// chooses. Every form uses the same model: what every control carries
// (EstadoControl), the controls with a size of their own (ControlConTamano,
// the kinds the dialogs add derive from it, and the scroll bars), and the
// picture boxes (CuadroImagen), which pair a surface's pixels with the
// control around them and are as large as their pixels.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "raster/Superficie.h"

// Pointers by number, as the controls use them.
constexpr int16_t PUNTERO_NORMAL = 0;
constexpr int16_t PUNTERO_ESPERA = 11;
constexpr int16_t PUNTERO_PROHIBIDO = 12;
constexpr int16_t PUNTERO_PREGUNTA = 14; // arrow with a question mark: what's this
constexpr int16_t PUNTERO_CUATRO_FLECHAS = 15;
constexpr int16_t PUNTERO_PROPIO = 99;

// What every control carries. Places are in pixels inside the parent. A
// control of a dialog knows its own name and its parent's (empty: the form
// itself), so the platform can build the tree; the main form's window
// builds its own and leaves them empty.
struct EstadoControl {
    std::string Nombre;
    std::string Padre;
    int32_t Left = 0;
    int32_t Top = 0;
    bool Visible = true;
    bool Enabled = true; // a disabled control receives no mouse events
    std::string ToolTipText;
    int16_t MousePointer = PUNTERO_NORMAL; // PUNTERO_*
    std::string MouseIcon;                 // the custom pointer's name, upper case
    int16_t WhatsThisHelpID = 0;           // topic given in what's-this mode
    int16_t HelpContextID = 0;             // topic of the F1 key

    void Move(int32_t left, int32_t top) {
        Left = left;
        Top = top;
    }
};

// A control whose size is its own (every kind but the picture box).
struct ControlConTamano : EstadoControl {
    int32_t Width = 0;
    int32_t Height = 0;
};

// A picture box: the pixels of a surface and the control around them. Its
// size is its surface's, Ancho() x Alto(); with the platform's sunken frame
// (Borde) that is the outer size, and the frame covers the outer two rows
// and columns.
class CuadroImagen : public Superficie, public EstadoControl {
  public:
    CuadroImagen() = default;
    CuadroImagen(int32_t ancho, int32_t alto, Color fondo = COLOR_BLANCO)
        : Superficie(ancho, alto, fondo) {}
    // A picture box about the given pixels.
    explicit CuadroImagen(Superficie pixeles) : Superficie(std::move(pixeles)) {}
    // A control of a dialog, named, placed and framed.
    CuadroImagen(const std::string &nombre, const std::string &padre, int32_t left, int32_t top,
                 int32_t ancho, int32_t alto, Color fondo, bool borde);

    bool Borde = false;

    // Places the picture box; with a size, resizes its surface too.
    // Fractional places are rounded to whole pixels, halves to even; a place
    // that is not a usable number leaves the old one.
    void Move(double left, double top);
    void Move(double left, double top, double ancho, double alto);
};

// The custom pointer of a control: PUNTERO_PROPIO with the named hand
// ("ManoBlanca", "ManoIndice", "ManoRoja", "ManoVerde", any case).
void PonCursor(EstadoControl &control, const std::string &nombre);

// A scroll bar: Value runs from Min to Max; a change of Value runs Change.
class BarraDesplazamiento : public ControlConTamano {
  public:
    BarraDesplazamiento() {
        Width = 16;
        Height = 16;
    }
    int32_t LargeChange = 1;
    int32_t SmallChange = 1;
    std::function<void()> Change;

    int32_t Min() const { return min_; }
    int32_t Max() const { return max_; }
    int32_t Value() const { return value_; }
    // Setting Max below Value brings Value down to it, which is a change.
    void PonMax(int32_t max);
    // A new value is kept within Min..Max; Change runs when it differs.
    void PonValue(int32_t value);

  private:
    int32_t min_ = 0;
    int32_t max_ = 0;
    int32_t value_ = 0;
};
