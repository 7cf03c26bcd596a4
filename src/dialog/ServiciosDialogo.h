// The customisation dialog's part of the desktop, and its opening from
// command 2. What the dialog asks of the desktop is Plataforma().Dialogo.
#pragma once

#include <string>
#include <vector>

// The volumes shown by Drive1.
std::vector<std::string> UnidadesDisponibles();

// Command 2's part: creates AbrirFic, loads it and shows it modally through
// the platform. Nothing happens without Plataforma().Dialogo.MuestraModal.
void AbreDialogoAbrirFic();
