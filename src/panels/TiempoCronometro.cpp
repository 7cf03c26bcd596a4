#include "panels/TiempoCronometro.h"

#include <chrono>
#include <cstdio>

namespace {

constexpr int32_t SEGUNDOS_DIA = 86400;

// The date that lies `dias` days after the first day of the calendar of
// time values, 30 December 1899.
std::string Fecha(int32_t dias) {
    using namespace std::chrono;
    const sys_days origen = year{1899} / December / 30;
    const year_month_day f{origen + days{dias}};
    char texto[16];
    std::snprintf(texto, sizeof texto, "%02u/%02u/%04d", static_cast<unsigned>(f.day()),
                  static_cast<unsigned>(f.month()), static_cast<int>(f.year()));
    return texto;
}

std::string Hora(int32_t segundos) {
    char texto[16];
    std::snprintf(texto, sizeof texto, "%d:%02d:%02d", segundos / 3600, segundos / 60 % 60,
                  segundos % 60);
    return texto;
}

} // namespace

std::string TiempoCronometro(int32_t segundos) {
    if (segundos < 0) {
        segundos = 0;
    }
    const int32_t dias = segundos / SEGUNDOS_DIA;
    const int32_t resto = segundos % SEGUNDOS_DIA;
    if (dias == 0) {
        return Hora(resto);
    }
    if (resto == 0) {
        return Fecha(dias);
    }
    return Fecha(dias) + " " + Hora(resto);
}
