// The game's event handlers, wired to the widgets of the main form.
#pragma once

class VentanaTeselari;

// Connects the mouse events of the panels and their buttons, and of the
// work area, to the game's handlers.
void ConectaManejadores(VentanaTeselari &ventana);
