#include "core/Arriba.h"

LlamadasArriba &Arriba() {
    static LlamadasArriba llamadas;
    return llamadas;
}
