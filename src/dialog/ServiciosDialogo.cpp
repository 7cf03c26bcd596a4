// The dialog's hooks to the desktop, and its opening from command 2.
#include "dialog/ServiciosDialogo.h"

#include <algorithm>
#include <cstdlib>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "dialog/FormAbrirFic.h"

std::vector<std::string> UnidadesDisponibles() {
    if (const auto unidades = Plataforma().Dialogo.Unidades; unidades != nullptr) {
        return unidades();
    }
    // Without the platform's list: the root and the volume of the home
    // folder, when that is another one.
    std::vector<std::string> unidades{"/"};
    if (const char *home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        const std::string suya = UnidadDeCarpeta(home);
        if (!suya.empty() && std::find(unidades.begin(), unidades.end(), suya) == unidades.end()) {
            unidades.push_back(suya);
        }
    }
    return unidades;
}

void AbreDialogoAbrirFic() {
    const auto muestra = Plataforma().Dialogo.MuestraModal;
    if (muestra == nullptr) {
        return;
    }
    FormAbrirFic AbrirFic;
    AbrirFic.Form_Load();
    muestra(AbrirFic);
}
