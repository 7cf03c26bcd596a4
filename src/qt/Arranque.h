// The start of the program: the desktop's services and Form_Load of the
// main form.
#pragma once

#include <QString>

class Superficie;
class VentanaTeselari;

// Installs the desktop's services for the game: the message dialog, the
// sound player, the event loop, the end of the program, the text and the
// help window.
void InstalaServicios();

// The game's icon on every window, and the name of its desktop entry, so
// that the desktop shows the menu's icon and name for the running game.
void PonIconoYEntradaEscritorio();

// Form_Load of `teselari`: calibration, tables, working folder, the saved
// game, the panels, the window shown, the clock started. Returns the window,
// which lives for the whole run.
VentanaTeselari &Form_Load();

// For a run that measures the load itself: the calibration's count given
// beforehand instead of the second of counting, and the program's folder
// (empty: the executable's). A count of 0 brings the counting back.
void PonArranqueMedido(double vueltasPorSegundo, const QString &carpetaPrograma);

// Whether Form_Load shows the splash (by default it does). Tests of the
// load that don't look at the splash leave it out.
void PonCaretaEnArranque(bool mostrar);

QString RutaTiraBotones();
QString RutaCaraCronometro();

// Whether the game asked to end (command 11) before the event loop ran.
bool ProgramaTerminado();
