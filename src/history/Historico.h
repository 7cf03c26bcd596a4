// The history file TESEL32.HIS and the table Historico.
//
// Every puzzle solved by hand leaves one line in TESEL32.HIS, in
// DirectorioTrabajo: 14 fields in the form of TESEL32.INI, Windows-1252,
// CR LF. The file is read whole at every start into Historico (records at
// 1..NroRegistrosHistorico, oldest first; the table ends 20 elements beyond
// the last record) and from then on only grows by AnadeHistorico.
#pragma once

#include <cstdint>
#include <string>

#include "services/Mensajes.h"

// The most records the table holds. The book counts the places of a section
// up to one beyond the last record in a 16-bit counter, so the table stops
// one short of the counter's top. A file with more records keeps them all;
// the table holds the newest.
constexpr int16_t MAXIMO_REGISTROS_HISTORICO = 32766;

// Reads TESEL32.HIS from DirectorioTrabajo into Historico and
// NroRegistrosHistorico; leaves DirectorioTrabajo as the current folder.
// A missing or damaged file is told by its message (numbers 6 and 62 are
// passed over in silence, and each number is told once per reading); the
// reading goes on after a field that fails, and that record counts.
void LeeHistorico();

// Enters the game just finished: a record filled from the game joins the
// table, and TESEL32.HIS is written again beside the old one with the
// record's line added (the old bytes kept as they are), then put in its
// place, so that a kill or a full disk never touches the records already
// there. A record the file could not take is kept and written with the next.
void AnadeHistorico();

// The text of an error of the history file; `unidad` names the drive of
// DirectorioTrabajo for error 68.
std::string TextoErrorHis(int16_t numero, const std::string &unidad);
// The message that tells it, with the lines its text takes in the message's
// label (two at least for the missing file).
Mensaje MensajeErrorHis(int16_t numero, const std::string &unidad);
