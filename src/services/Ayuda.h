// The help book: the one operation the game asks of it, and its topics.
//
// The engine and the forms call MuestraAyuda with a topic number; the Qt
// layer installs the help window at start, and tests install doubles. With
// nothing installed the call does nothing.
#pragma once

#include <cstdint>
#include <string>

// Topic numbers, as the forms pass them on (F1 and the dialog's what's-this).
namespace TemasAyuda {
constexpr int16_t Contenido = 0;           // the contents, the book's first page
constexpr int16_t Tablero = 1120;          // the main form and the board
constexpr int16_t BotonesSiempre = 1210;   // the always-visible panel
constexpr int16_t Personalizar = 1230;     // the dialog as a whole, "Aceptar", "Rechazar"
constexpr int16_t ImagenPuzzle = 1231;     // drive, folder and file lists, preview
constexpr int16_t Portapapeles = 1232;     // "Cargar imagen del Portapapeles"
constexpr int16_t Zoom = 1233;             // zoom stepper and the picture's size
constexpr int16_t NumeroPiezas = 1234;     // the list of grids
constexpr int16_t FormaPiezas = 1235;      // the six shapes
constexpr int16_t ColorFondo = 1236;       // the six background colours
constexpr int16_t FactorAtraccion = 1237;  // attraction stepper and its test
constexpr int16_t Velocidad = 1238;        // speed stepper
constexpr int16_t Cronometro = 1239;       // chronometer selector
constexpr int16_t Sonido = 1240;           // sound selector
constexpr int16_t Pistas = 1241;           // tooltips selector
constexpr int16_t LugarBotones = 1242;     // "Personalizar botones >>" and its page
constexpr int16_t Historico = 1250;        // the history book
constexpr int16_t PanelCronometro = 1280;  // the chronometer panel
constexpr int16_t PiezasColocadas = 1290;  // the count of placed pieces
constexpr int16_t ControlesDialogo = 1602; // F1 on the dialog's other small controls
constexpr int16_t PanelPrueba = 1603;      // F1 on the attraction test panel
} // namespace TemasAyuda

// Opens the help window on the topic's page and anchor; 0 and any number
// the book doesn't know open the contents. Returns when the window is up
// (it isn't modal).
void MuestraAyuda(int16_t tema);

// Where a topic lies in the book: the page and, for a topic, its anchor,
// e.g. "personalizar.html#t1231". The contents page for 0 and for any
// number the book doesn't know.
std::string DestinoAyuda(int16_t tema);
