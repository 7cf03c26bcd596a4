// Saving a surface as a Windows bitmap file.
#pragma once

#include <string>

class Superficie;

// Writes the surface as an uncompressed 24-bit bitmap (rows bottom up, each
// padded to four bytes), overwriting an older file of that name. Returns
// false when the file can't be written.
bool GuardaBmp(const Superficie &s, const std::string &fichero);
