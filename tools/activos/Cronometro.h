// The face of the chronometer panel, 62 x 39.
#pragma once

#include <QImage>

constexpr int AnchoCronometro = 62;
constexpr int AltoCronometro = 39;

// Grey face with a white and black bevel, a green and a red key in their
// frames, and a sunken grey field for the time.
QImage GeneraCronometro();
