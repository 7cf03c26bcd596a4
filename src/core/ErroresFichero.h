// The error numbers of the file readers and the texts they show.
//
// The game names a file error by the number it has always had: 7 out of
// memory, 53 file not found, 68 device unavailable, 75 access refused,
// 76 path not found. The failures of this system map onto them here.
#pragma once

#include <cstdint>
#include <string>

constexpr int16_t ERROR_MEMORIA = 7;
constexpr int16_t ERROR_FICHERO_NO_ENCONTRADO = 53;
constexpr int16_t ERROR_UNIDAD_NO_PREPARADA = 68;
constexpr int16_t ERROR_ACCESO = 75;
constexpr int16_t ERROR_RUTA_NO_ENCONTRADA = 76;

// The number of a failure (errno) met entering a folder.
int16_t ErrorDeCarpeta(int errno_);

// The number of a failure (errno) met opening a file in the current folder.
int16_t ErrorDeFichero(int errno_);

// The text of an error of the initialisation file; `unidad` names the drive
// of DirectorioTrabajo for error 68.
std::string TextoErrorIni(int16_t numero, const std::string &unidad);
