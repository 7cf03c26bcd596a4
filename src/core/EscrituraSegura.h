// Writing a file so that a kill or a full disk never leaves it half written.
#pragma once

#include <cstdint>
#include <string>

// Writes the whole content to a file beside the old one (the name with
// ".tmp" added), makes it reach the disk, and only then puts it in the old
// one's place: a kill or a full disk leaves the previous file whole. The name
// is relative to the current folder. False when the file was not replaced.
bool EscribeSeguro(const std::string &nombre, const std::string &contenido);

// Fault injection for tests: once `bytes` bytes of the content have been
// written, `fallo` runs (it may end the process) and the write fails as on
// a full disk. A negative count puts the writes back to normal.
void SimulaFalloEscritura(int64_t bytes, void (*fallo)() = nullptr);
