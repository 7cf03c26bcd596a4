// The number formats of the history book, with a point as the decimal
// separator whatever the locale. Rounding to the decimals shown goes half
// away from zero, as the format masks of the forms do.
#pragma once

#include <cstdint>
#include <string>

// "###0", "##0", "#0": the integer as it is.
std::string FormatoEntero(int64_t valor);

// "##0.000": 42.53 -> "42.530".
std::string FormatoTresDecimales(double valor);

// Zeros on the left up to `enteros` digits, and `decimales` decimals:
// "000.000" is (3, 3), 57.47 -> "057.470"; "000000" is (6, 0), 75 ->
// "000075". A value with more digits keeps them all.
std::string FormatoCeros(double valor, int enteros, int decimales);

// "@@@@": right-aligned with blanks in `ancho` characters; a longer text
// keeps all its characters.
std::string FormatoArrobas(int64_t valor, size_t ancho);

// The name of a cut as the book shows it; empty for a number outside 0..5.
std::string NombreTipoPieza(int16_t tipo);
