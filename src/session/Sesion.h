// The game kept between runs: TESEL32.INI in DirectorioTrabajo.
#pragma once

// Writes TESEL32.INI in DirectorioTrabajo: settings, buttons, the game.
void GuardaSesion();

// Reads TESEL32.INI and brings the game back exactly, or leads into the
// customisation dialog when there is no usable file or picture.
void RestauraSesion();
