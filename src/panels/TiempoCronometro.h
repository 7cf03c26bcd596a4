// The time on the chronometer's face and in the history book.
#pragma once

#include <cstdint>
#include <string>

// The seconds as a time of day: "H:mm:ss" (no leading zero on the hours).
// A count of a day or more reads as the date of that many days after
// 30/12/1899, "dd/mm/yyyy", followed by a blank and the time; a whole
// number of days shows the date alone, as the general date format does.
std::string TiempoCronometro(int32_t segundos);
