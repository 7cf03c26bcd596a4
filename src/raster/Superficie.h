// Superficie: a pixel surface with the drawing state of a device context.
//
// Ownership: a surface owns its pixels, a row-major array of 32-bit words,
// Ancho() x Alto(), row y starting at y * Ancho(). The store holds
// 0xFFRRGGBB (what a screen presents directly); the game speaks colour words
// 0x00BBGGRR, and the two are converted at the edge of this API: every colour
// argument and every result of Point() is a game colour word.
//
// Besides the pixels a surface carries the drawing state of its device
// context: background and drawing colours, DrawMode, fill style, the current
// text position and font, and an optional clip region. Where a surface
// stands, whether it shows and what it shows the mouse belong to the control
// around it, not to the pixels.
// All drawing, including blits into the surface, is clipped to the surface
// and to the clip region when one is selected.
//
// A surface that stands on the screen gets an observer (AlCambiar): every
// drawing operation reports the rectangle it touched, so the platform can
// show it at once.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "raster/Colores.h"
#include "raster/Rectangulo.h"
#include "raster/Region.h"

// Draw modes of lines, boxes, points and arcs.
constexpr int16_t DRAWMODE_COPIA = 13;   // vbCopyPen
constexpr int16_t DRAWMODE_INVIERTE = 6; // vbInvert

struct Fuente {
    std::string Nombre = "MS Sans Serif";
    double Tamano = 8.25; // points
    bool Negrita = false;
};

class Superficie {
  public:
    Superficie() = default;
    Superficie(int32_t ancho, int32_t alto, Color fondo = COLOR_BLANCO);

    // --- size ---
    int32_t Ancho() const { return ancho_; }
    int32_t Alto() const { return alto_; }
    // Resizes the surface. Fractional sizes are rounded to whole pixels,
    // halves to even. A resize keeps the pixels that stay inside and gives
    // the new ones the background colour.
    void CambiaTamano(double ancho, double alto);

    // --- colours and styles ---
    Color BackColor() const { return fondo_; }
    // Setting the background colour repaints the whole surface with it, as
    // a picture box does.
    void PonBackColor(Color c);
    // Sets the background colour without touching the pixels.
    void PonBackColorSinPintar(Color c) { fondo_ = c; }
    Color ForeColor = COLOR_NEGRO;
    Color FillColor = COLOR_NEGRO;
    bool RellenaFiguras = false; // closed boxes and whole ellipses are filled
    int16_t DrawMode = DRAWMODE_COPIA;

    // --- text ---
    double CurrentX = 0;
    double CurrentY = 0;
    Fuente Letra;
    // Writes text (UTF-8) at (CurrentX, CurrentY) in ForeColor through the
    // platform's text interface; advances CurrentX by its width.
    void Print(const std::string &texto);
    double TextWidth(const std::string &texto) const;
    double TextHeight(const std::string &texto) const;

    // --- drawing ---
    // The whole surface in the background colour with the assigned picture
    // over it, as a picture box clears; CurrentX/Y = 0.
    void Cls();
    void PSet(double x, double y);
    void PSet(double x, double y, Color c);
    // The colour word of a pixel; -1 (all bits set) outside the surface.
    Color Point(double x, double y) const;
    // A line one pixel wide; its last point is left out, as on a device
    // context.
    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, Color c);
    // The box option: outline of the rectangle with both corners included;
    // filled with FillColor inside on a surface that fills closed shapes.
    void Caja(double x1, double y1, double x2, double y2);
    void Caja(double x1, double y1, double x2, double y2, Color c);
    // A box filled with one colour, no outline (the "BF" option).
    void CajaLlena(double x1, double y1, double x2, double y2, Color c);
    // Ellipse or arc, see Circulo.cpp for the rules of aspect and angles.
    void Circle(double x, double y, double radio);
    void Circle(double x, double y, double radio, double aspecto);
    void CircleArco(double x, double y, double radio, double inicio, double fin,
                    double aspecto = 1.0);

    // --- picture ---
    // Assigns the picture of another surface. When TomaTamanoDeImagen is set
    // the surface takes the picture's size; otherwise it keeps its size and
    // the picture is laid at its top left corner over the background.
    bool TomaTamanoDeImagen = false;
    // The surface keeps the picture: Cls and PonBackColor lay it again.
    void AsignaImagen(const Superficie &origen);
    // An empty picture: the surface is plain in its background colour and
    // keeps no picture.
    void QuitaImagen();

    // --- clip region (SelectClipRgn) ---
    const std::optional<Region> &Recorte() const { return recorte_; }
    void PonRecorte(const Region *r);

    // --- raw access for the raster operations ---
    uint32_t *Fila(int32_t y) { return pix_.data() + static_cast<size_t>(y) * ancho_; }
    const uint32_t *Fila(int32_t y) const { return pix_.data() + static_cast<size_t>(y) * ancho_; }
    const std::vector<uint32_t> &Pixeles() const { return pix_; }
    Rectangulo Limites() const { return Rectangulo{0, 0, ancho_, alto_}; }
    // Writes one pixel in store form, through clip and draw mode.
    void EscribePixel(int32_t x, int32_t y, uint32_t pixel);
    // Reports a touched rectangle to the observer (clipped to the surface).
    void Cambiado(const Rectangulo &r);
    std::function<void(const Rectangulo &)> AlCambiar;

  private:
    int32_t ancho_ = 0;
    int32_t alto_ = 0;
    Color fondo_ = COLOR_BLANCO;
    std::vector<uint32_t> pix_;
    std::optional<Region> recorte_;
    // The assigned picture, kept to be laid again by Cls.
    std::vector<uint32_t> imagen_;
    int32_t imagenAncho_ = 0;
    int32_t imagenAlto_ = 0;

    void PintaFondoEImagen();
};

// The platform's text service: fonts, measuring and drawing into a surface.
class Rotulador {
  public:
    virtual ~Rotulador() = default;
    virtual double Ancho(const Fuente &f, const std::string &texto) = 0;
    virtual double Alto(const Fuente &f, const std::string &texto) = 0;
    virtual void Dibuja(Superficie &s, const Fuente &f, double x, double y, Color c,
                        const std::string &texto) = 0;
};
// Installs the text service (nullptr: text is measured as 0 and not drawn).
void PonRotulador(Rotulador *r);
Rotulador *RotuladorActual();
