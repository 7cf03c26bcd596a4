// Writes every asset into a folder.
#pragma once

#include <QString>
#include <ostream>

// Writes the button strip, the dialog's strip, the chronometer, the cursors,
// the clips and, when `conMuestras`, the sample pictures under `carpeta`.
// True when all went well.
bool EscribeActivos(const QString &carpeta, bool conMuestras, std::ostream &informe);
