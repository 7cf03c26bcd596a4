// The text form of TESEL32.INI: fields, lines and the Windows-1252 code page.
//
// The file keeps the form it has always had on Windows, so it moves between
// the two: single-byte Windows-1252, CR LF at each line end, fields joined by
// one comma. A number is plain decimal, a string stands between double quotes
// with no escaping, a Boolean is #TRUE# or #FALSE#. The engine's strings are
// UTF-8; they are converted here, at the file's edge.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// UTF-8 to Windows-1252. A character the code page lacks, or a byte that is
// not valid UTF-8, becomes "?", as the system's own conversion does.
std::string AWindows1252(std::string_view utf8);

// Windows-1252 to UTF-8. The five bytes the code page leaves undefined map to
// the control characters of the same number, so every byte comes back.
std::string DeWindows1252(std::string_view bytes);

// The written forms of the three kinds of field.
std::string CampoNumero(int64_t valor);
std::string CampoCadena(std::string_view utf8);
std::string CampoLogico(bool valor);

// Fields joined by commas and closed by CR LF.
std::string LineaIni(const std::vector<std::string> &campos);

// One field as read: the text between the quotes, or the text up to the
// next comma without surrounding blanks.
struct CampoIni {
    std::string texto; // still in Windows-1252
    bool entrecomillado = false;
    bool cerrado = true; // a quoted field found its closing quote
};

// The lines of a file's content, without their ends (CR LF or a bare LF).
std::vector<std::string> DivideLineas(std::string_view contenido);

// The fields of one line; an empty line has none.
std::vector<CampoIni> DivideCampos(std::string_view linea);

// A number in [minimo, maximo] (the width of its variable); nothing when the
// field is not a plain decimal number or does not fit.
std::optional<int64_t> LeeNumero(const CampoIni &campo, int64_t minimo, int64_t maximo);

// A Boolean, #TRUE# or #FALSE#; nothing for anything else.
std::optional<bool> LeeLogico(const CampoIni &campo);

// A string, converted to UTF-8; nothing for an unclosed quote.
std::optional<std::string> LeeCadena(const CampoIni &campo);
