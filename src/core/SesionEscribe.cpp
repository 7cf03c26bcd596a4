// Writing the game into TESEL32.INI.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "core/PuzzGbl.h"
#include "core/Sesion.h"
#include "core/SesionTexto.h"
#include "core/TextoIni.h"

using namespace PuzzGbl;

namespace {

// Writes the whole content to a file beside the old one, makes it reach the
// disk, and only then puts it in the old one's place: a kill or a full disk
// leaves the previous file whole.
void EscribeSeguro(const std::string &nombre, const std::string &contenido) {
    const std::string temporal = nombre + ".tmp";
    const int fd = ::open(temporal.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        return;
    }
    bool bien = true;
    for (size_t hecho = 0; bien && hecho < contenido.size();) {
        const ssize_t n = ::write(fd, contenido.data() + hecho, contenido.size() - hecho);
        if (n > 0) {
            hecho += static_cast<size_t>(n);
        } else if (n < 0 && errno != EINTR) {
            bien = false;
        }
    }
    bien = bien && ::fsync(fd) == 0;
    bien = ::close(fd) == 0 && bien;
    if (!bien || std::rename(temporal.c_str(), nombre.c_str()) != 0) {
        std::remove(temporal.c_str());
        return;
    }
    const int carpeta = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (carpeta >= 0) {
        ::fsync(carpeta);
        ::close(carpeta);
    }
}

} // namespace

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
