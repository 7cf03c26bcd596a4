#include "services/Reloj.h"

#include "core/Plataforma.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace {

double HoraDeArranque() {
    std::time_t ahora = std::time(nullptr);
    std::tm local{};
    localtime_r(&ahora, &local);
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
}

double RelojDeLaMaquina() {
    using namespace std::chrono;
    static const auto arranque = steady_clock::now();
    static const double hora = HoraDeArranque();
    const double pasado = duration<double>(steady_clock::now() - arranque).count();
    return std::fmod(hora + pasado, SEGUNDOS_DIA);
}

} // namespace

double Timer() {
    const auto reloj = Plataforma().Reloj;
    return reloj != nullptr ? reloj() : RelojDeLaMaquina();
}

Cronometraje::Cronometraje() : inicio_(Timer()), anterior_(inicio_) {}

double Cronometraje::Transcurrido() {
    const double ahora = Timer();
    if (ahora < anterior_) {
        vueltas_ += SEGUNDOS_DIA;
    }
    anterior_ = ahora;
    return ahora + vueltas_ - inicio_;
}
