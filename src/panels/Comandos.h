// The one routine through which every command passes.
#pragma once

#include <cstdint>

// Ends the modes that command `boton` excludes, then carries it out with its
// button drawn pressed: 1 help, 2 customisation, 3 model, 4 new shuffle,
// 5 hidden pieces, 6 placed pieces, 7 lay out, 8 tutor, 9 solver,
// 10 history book, 11 exit.
void PulsaBoton(int16_t boton);
