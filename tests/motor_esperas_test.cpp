// The pace of the game: the calibration and the two delays, on a clock the
// test drives; the clock's own count across midnight.
#include "core/PuzzGbl.h"
#include "motor_comun.h"
#include "plataforma_prueba.h"
#include "services/Esperas.h"
#include "services/Reloj.h"

using namespace PuzzGbl;

namespace {

// A clock that advances a fixed step at each reading.
double horaFalsa = 0.0;
double pasoFalso = 0.001;
int64_t lecturas = 0;

double RelojFalso() {
    ++lecturas;
    const double h = horaFalsa;
    horaFalsa += pasoFalso;
    if (horaFalsa >= SEGUNDOS_DIA) {
        horaFalsa -= SEGUNDOS_DIA;
    }
    return h;
}

class Esperas : public Motor {
  protected:
    void Arranca(double hora, double paso) {
        horaFalsa = hora;
        pasoFalso = paso;
        lecturas = 0;
        PonServicio(&ServiciosPlataforma::Reloj, RelojFalso);
    }
};

} // namespace

TEST_F(Esperas, EsperaTiempoSigueLaVelocidad) {
    // Velocidad, the hundredths asked and the seconds waited.
    const std::tuple<int16_t, int32_t, double> casos[] = {{50, 100, 0.5},   {0, 100, 1.0},
                                                          {100, 100, 0.0},  {50, 22, 0.11},
                                                          {75, 45, 0.1125}, {0, 5, 0.05}};
    for (const auto &[velocidad, centesimas, segundos] : casos) {
        Velocidad = velocidad;
        Arranca(30000.0, 0.001);
        EsperaTiempo(centesimas);
        const double pasado = static_cast<double>(lecturas - 1) * 0.001;
        EXPECT_NEAR(pasado, segundos, 0.0105) << velocidad << " " << centesimas;
    }
}

TEST_F(Esperas, EsperaVueltasDerivaDeLaCalibracion) {
    // The calibration counts one second at 10000 readings a second.
    Arranca(1000.0, 0.0001);
    CalibraVelocidad();
    EXPECT_NEAR(VueltasPorSegundo, 10000, 2);
    Velocidad = 50;
    const double media = DuracionVueltas(1);
    VueltasPorSegundo = 3.0e7;
    // The pace targets: a move of 14 pixels per step at 18 units covers 800
    // to 1200 pixels a second; dealing 64 pieces at 10 units takes 0.3 to
    // 0.8 seconds.
    EXPECT_GE(14.0 / DuracionVueltas(18), 800.0);
    EXPECT_LE(14.0 / DuracionVueltas(18), 1200.0);
    EXPECT_GE(64 * DuracionVueltas(10), 0.3);
    EXPECT_LE(64 * DuracionVueltas(10), 0.8);
    Velocidad = 0;
    EXPECT_NEAR(DuracionVueltas(1), 2 * media, 1e-12);
    Velocidad = 100;
    EXPECT_EQ(DuracionVueltas(10), 0.0);
    // Another machine counts otherwise but waits the same.
    Velocidad = 50;
    EXPECT_NEAR(DuracionVueltas(1), media, 1e-12);
    // Uncalibrated or nothing to wait: no wait.
    VueltasPorSegundo = 0;
    EXPECT_EQ(DuracionVueltas(5), 0.0);
    VueltasPorSegundo = 1.0e6;
    EXPECT_EQ(DuracionVueltas(0), 0.0);
    EXPECT_EQ(DuracionVueltas(-3), 0.0);
    // The wait spends that time on the clock.
    VueltasPorSegundo = 3.0e7;
    Arranca(500.0, 0.0001);
    EsperaVueltas(100);
    EXPECT_NEAR(static_cast<double>(lecturas - 1) * 0.0001, DuracionVueltas(100), 0.0002);
}

TEST(Reloj, CuentaElTiempoPasadoTrasLaMedianoche) {
    horaFalsa = SEGUNDOS_DIA - 1.0;
    pasoFalso = 0.25;
    PonServicio(&ServiciosPlataforma::Reloj, RelojFalso);
    Cronometraje c;
    double ultimo = 0;
    for (int i = 0; i < 12; ++i) {
        ultimo = c.Transcurrido();
    }
    EXPECT_DOUBLE_EQ(ultimo, 3.0);
    PonServicio(&ServiciosPlataforma::Reloj, nullptr);
    const double t = Timer();
    EXPECT_GE(t, 0.0);
    EXPECT_LT(t, SEGUNDOS_DIA);
}
