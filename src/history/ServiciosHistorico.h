// The opening of the history book from command 10. What the book asks of
// the desktop is Plataforma().Historico.
#pragma once

// Command 10's part: creates Historic, loads it and shows it modally
// through the platform.
void AbreLibroHistorico();
