// Writing the game into TESEL32.INI.
#include <unistd.h>

#include <algorithm>

#include "core/EscrituraSegura.h"
#include "core/PuzzGbl.h"
#include "core/TextoIni.h"
#include "session/Sesion.h"
#include "session/SesionTexto.h"

using namespace PuzzGbl;

std::string TextoSesion() {
    std::string t;
    t += LineaIni({CampoCadena(FicheroImagen), CampoNumero(FactorPegado), CampoNumero(ColorFondo),
                   CampoNumero(Cronometro), CampoLogico(ModeloVisible),
                   CampoCadena(CadenaFija(NombreJugador, 9)), CampoNumero(Velocidad),
                   CampoNumero(Sonido), CampoNumero(Pistas)});
    for (int i = 1; i <= 11; ++i) {
        t += LineaIni({CampoLogico(BotonEnSiempre[i]), CampoLogico(BotonEnDerecho[i])});
    }
    t += LineaIni({CampoCadena(NombreImagen), CampoNumero(NroPiezas), CampoNumero(PiezasPorLado),
                   CampoNumero(PuzzleCompleto), CampoNumero(TipoPieza), CampoNumero(PartidaValida),
                   CampoNumero(SegundosCronometro), CampoNumero(Zoom), CampoCadena(UnidadImagen),
                   CampoCadena(CarpetaImagen)});
    for (size_t i = 1; i <= static_cast<size_t>(std::max<int16_t>(NroPiezas, 0)) &&
                       i < Piezas.size() && i < OrdenPiezas.size();
         ++i) {
        const Pieza &p = Piezas[i];
        t += LineaIni({CampoNumero(p.X), CampoNumero(p.Y), CampoNumero(p.XCorrecta),
                       CampoNumero(p.YCorrecta), CampoNumero(OrdenPiezas[i])});
    }
    return t;
}

void GuardaSesion() {
    if (::chdir(DirectorioTrabajo.c_str()) != 0) {
        // The file goes to the current folder, as it would have anyway.
    }
    EscribeSeguro("TESEL32.INI", TextoSesion());
}
