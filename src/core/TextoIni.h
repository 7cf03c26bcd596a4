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

// Strings: a string every character of which Windows-1252 has is written in
// that code page, byte for byte as the Windows program writes it. Any other
// string (a folder named "Фото", a name in Chinese or with an emoji) is
// written as UTF-8, so that nothing is lost. The reader tells the two apart:
// bytes that are valid UTF-8 and hold a byte above 127 are UTF-8, anything
// else is Windows-1252. The rare Windows-1252 string whose bytes would read
// as UTF-8 ("Ã©") is therefore written as UTF-8 too, and every string comes
// back as it went. TESEL32.INI and TESEL32.HIS both follow this rule through
// CampoCadena and LeeCadena. A string cannot hold a double quote or a line
// break: the format has no escape for them, and callers keep them out.

// Whether every character of a UTF-8 string has a byte in Windows-1252.
bool CabeEnWindows1252(std::string_view utf8);

// Whether bytes are valid UTF-8 with at least one byte above 127.
bool EsUtf8ConAcentos(std::string_view bytes);

// The bytes of a string in the file, by the rule above, and back.
std::string BytesDeCadena(std::string_view utf8);
std::string CadenaDeBytes(std::string_view bytes);

// Whether a string can stand between the quotes of a field: no double
// quote, no line break.
bool CadenaEscribible(std::string_view utf8);

// UTF-8 to Windows-1252. A character the code page lacks, or a byte that is
// not valid UTF-8, becomes "?", as the system's own conversion does.
std::string AWindows1252(std::string_view utf8);

// Windows-1252 to UTF-8. The five bytes the code page leaves undefined map to
// the control characters of the same number, so every byte comes back.
std::string DeWindows1252(std::string_view bytes);

// The written forms of the three kinds of field.
std::string CampoNumero(int64_t valor);
// A string field, in Windows-1252 or UTF-8 by the rule above.
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

// A string, converted to UTF-8 by the rule above; nothing for an unclosed
// quote.
std::optional<std::string> LeeCadena(const CampoIni &campo);
