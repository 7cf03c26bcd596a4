// The random numbers of the deal: uniform values in [0, 1), seeded once per
// shuffle from the clock.
#pragma once

// Seeds the generator; the same seed gives the same sequence.
void Randomize(double semilla);

// The next value, 0 <= r < 1.
double Rnd();
