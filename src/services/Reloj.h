// The clock of the game: seconds since midnight, with fractions.
//
// The default clock runs on the monotonic clock of the machine, set at start
// to the time of day, so it never jumps; it wraps to 0 at midnight as a
// clock of the day does. Whoever measures a length of time with it goes
// through Transcurrido, which counts across midnight.
#pragma once

// Seconds since midnight, 0 <= t < 86400.
double Timer();

constexpr double SEGUNDOS_DIA = 86400.0;

// Follows the clock from a start and tells the seconds gone by, also when
// the clock has wrapped at midnight meanwhile.
class Cronometraje {
  public:
    Cronometraje();
    // Seconds since construction; reads the clock once.
    double Transcurrido();

  private:
    double inicio_;
    double anterior_;
    double vueltas_ = 0.0;
};
