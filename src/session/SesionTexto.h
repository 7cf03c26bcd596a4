// The content of TESEL32.INI for the game as it stands.
#pragma once

#include <string>

// The four blocks, in the file's own bytes (Windows-1252, CR LF).
std::string TextoSesion();
