// Every test program of the rules runs with the floors joined as the game
// joins them at its start.
#include "session/Enlaces.h"

namespace {
const bool enlazados = (EnlazaArriba(), true);
} // namespace
