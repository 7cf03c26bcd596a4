// The fields of TESEL32.HIS one after the other, over the whole content.
//
// A comma and a line end (CR LF, or a bare LF or CR) alike end a field, so
// the division into lines does not matter. Blanks before a field are
// dropped; a string stands between double quotes, and what follows its
// closing quote up to the separator is dropped; a quote left open ends at
// its line's end. Blank lines between two records are passed over, and a
// Ctrl-Z ends the content, as it ends a text file on Windows.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/TextoIni.h"

class LectorCampos {
  public:
    explicit LectorCampos(std::string_view contenido);

    // Passes over blanks and line ends before a record; true when nothing
    // is left to read.
    bool Fin();

    // The next field, its separator consumed; false when the content ended
    // before it (the file ends inside a record).
    bool Siguiente(CampoIni &campo);

  private:
    std::string_view texto_;
    size_t i_ = 0;

    bool FinDeLinea(size_t i) const;
    void SaltaSeparador();
};
