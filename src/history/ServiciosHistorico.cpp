#include "history/ServiciosHistorico.h"

#include "core/Plataforma.h"
#include "history/FormHistoric.h"

void AbreLibroHistorico() {
    FormHistoric Historic;
    Historic.Form_Load();
    if (const auto muestra = Plataforma().Historico.MuestraModal; muestra != nullptr) {
        muestra(Historic);
    }
}
