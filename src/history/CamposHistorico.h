// The fields of a record of TESEL32.HIS in their written form, and the
// numbers read back with the error a field raises.
//
// The strings and the integers take the forms of TESEL32.INI (TextoIni.h);
// Dificultad is the one number with decimals: written with a point, whatever
// the locale, in the fewest digits that read back as the same single, so
// the book's three decimals come out the same from the file as from the
// game.
#pragma once

#include <cstdint>
#include <string>

#include "core/PuzzGbl.h"
#include "core/TextoIni.h"

// Error numbers met while reading a field, besides those of ErroresFichero.h.
constexpr int16_t ERROR_DESBORDAMIENTO = 6;  // a number too large for its field
constexpr int16_t ERROR_TIPO = 13;           // not a number where one belongs
constexpr int16_t ERROR_FIN_DE_FICHERO = 62; // the file ends inside a record

// Dificultad as written: "42.53", "0.1", "100".
std::string CampoDecimal(float valor);

// An integer field into [minimo, maximo]: 0 and the value, or the error.
// An empty field reads as 0; a quoted one is read by its content.
int16_t LeeEntero(const CampoIni &campo, int64_t minimo, int64_t maximo, int64_t &valor);

// A number with or without decimals into a single: 0, 6 or 13.
int16_t LeeDecimal(const CampoIni &campo, float &valor);

// The line of a record: 14 fields, CR LF, in the file's own bytes.
std::string LineaHistorico(const RegistroHistorico &r);
