// Bringing back the game of the last run from TESEL32.INI.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "board/Barajar.h"
#include "core/ErroresFichero.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "core/TextoIni.h"
#include "cutting/Corte.h"
#include "panels/Comandos.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"
#include "session/Sesion.h"
#include "session/SesionBloques.h"
#include "session/SesionImagen.h"
#include "session/TextosSesion.h"

using namespace PuzzGbl;

namespace {

// A valid file is a few tens of kilobytes; what lies beyond this is no part
// of a game.
constexpr size_t TAMANO_MAXIMO = 1 << 20;

// The error handler of the opening: the number is kept and told.
void TrataErrorFichero(int16_t numero) {
    ErrorFichero = numero;
    if (numero != 6) {
        MuestraMensaje(MensajeErrorIni(numero, UnidadDeCarpeta(DirectorioTrabajo)));
    }
}

// Enters DirectorioTrabajo and reads the file whole. A folder that can't be
// entered is reported alone: the file is not then looked for elsewhere.
std::string AbreFicheroIni() {
    if (::chdir(DirectorioTrabajo.c_str()) != 0) {
        TrataErrorFichero(ErrorDeCarpeta(errno));
        return {};
    }
    std::FILE *f = std::fopen("TESEL32.INI", "rb");
    if (f == nullptr) {
        TrataErrorFichero(ErrorDeFichero(errno));
        return {};
    }
    struct stat datos {};
    if (::fstat(::fileno(f), &datos) == 0 && S_ISDIR(datos.st_mode)) {
        // A folder of that name: no file to read, as the system says.
        std::fclose(f);
        TrataErrorFichero(ERROR_ACCESO);
        return {};
    }
    std::string contenido(TAMANO_MAXIMO, '\0');
    contenido.resize(std::fread(contenido.data(), 1, contenido.size(), f));
    std::fclose(f);
    return contenido;
}

// The dialog leads the player to a picture, and a new game is dealt: by
// the dialog's command itself when the puzzle changed. When the platform
// shows no dialog, or it closed on the very puzzle it opened with, the game
// is dealt here, from the first sample picture if there is still no usable
// one.
void PideImagenYBaraja() {
    PuzzleCambiado = FALSO;
    PulsaBoton(2);
    if (PuzzleCambiado == FALSO) {
        CargaImagenDeMuestra();
        PreparaBitmap();
    }
}

// No usable file: the settings of a first run, and the dialog.
void EmpiezaDeCero() {
    PonAjustesPrimerArranque();
    PartidaValida = FALSO;
    SegundosCronometro = 0;
    UnidadImagen = UnidadDeCarpeta(DirectorioTrabajo);
    CarpetaImagen = DirectorioTrabajo;
    DejaOrigenEnBlanco();
    PideImagenYBaraja();
}

// What reloading the saved game's picture came to.
enum class Recarga { Leida, Rechazada, Perdida };

// Reloads the picture into Pic_Origin at the zoom. w and h take its size
// after the zoom. A file that is missing or can't be decoded is lost; one
// outside the limits, or stating a size too large to decode, is refused
// and not scaled.
Recarga RecargaImagen(bool sinError, int64_t &w, int64_t &h) {
    FormTeselari &f = teselari;
    f.Pic_Origin.QuitaImagen();
    f.Pic_W.QuitaImagen();
    bool leida = sinError;
    bool desmesurada = false;
    w = AnchoConZoom(Zoom);
    h = AltoConZoom(Zoom);
    if (FicheroImagen != " ") {
        const CargaDeImagen carga = CargaImagen(FicheroImagen, f.Pic_W);
        desmesurada = carga.Estado == EstadoCarga::Desmesurada;
        leida = leida && (carga.Leida() || desmesurada);
        w = ConZoom(carga.Ancho, Zoom);
        h = ConZoom(carga.Alto, Zoom);
    }
    if (!leida) {
        f.Pic_W.CambiaTamano(0, 0);
        return Recarga::Perdida;
    }
    if (desmesurada || !TamanoPermitido(w, h)) {
        f.Pic_W.CambiaTamano(0, 0);
        return Recarga::Rechazada;
    }
    PasaImagenAOrigen(static_cast<int32_t>(w), static_cast<int32_t>(h));
    return Recarga::Leida;
}

void RechazaImagen(int64_t w, int64_t h) {
    teselari.MousePointer = PUNTERO_NORMAL;
    ReproduceSonido(Clips::Rechazo);
    MuestraMensaje(MensajeImagenRechazada(w, h));
    DejaOrigenEnBlanco();
    Zoom = 100;
    ImagenValida = FALSO;
    PideImagenYBaraja();
}

void LamentaImagenPerdida() {
    teselari.MousePointer = PUNTERO_NORMAL;
    ReproduceSonido(Clips::Rechazo);
    MuestraMensaje(MensajeImagenPerdida(FicheroImagen));
    DejaOrigenEnBlanco();
    PideImagenYBaraja();
}

// The picture is cut again and the pieces go back where they were; a file
// whose settings or pieces can't be trusted gets a fresh deal of the
// picture instead.
void RecuperaPartida(LecturaSesion &l) {
    SesionRestaurando = VERDADERO;
    ImagenValida = VERDADERO;
    if (l.danado) {
        SesionRestaurando = FALSO;
        PreparaBitmap();
        return;
    }
    PreparaBitmap();
    ColocaPiezasEnCasa();
    if (!LeePiezas(l)) {
        SesionRestaurando = FALSO;
    }
    Barajar();
    SesionRestaurando = FALSO;
}

} // namespace

void RestauraSesion() {
    ErrorFichero = 0;
    const std::string contenido = AbreFicheroIni();
    if (ErrorFichero != 0) {
        EmpiezaDeCero();
        teselari.MousePointer = PUNTERO_NORMAL;
        return;
    }
    LecturaSesion l;
    l.lineas = DivideLineas(contenido);
    LeeAjustes(l);
    PiezasDobles = TipoPieza >= 2 ? 1 : 0;
    if (DirectorioTrabajo != DirectorioPrograma()) {
        UnidadImagen = UnidadDeCarpeta(DirectorioTrabajo);
        CarpetaImagen = DirectorioTrabajo;
    }
    // A drive that is not there is not kept: the dialog opens on the working
    // folder's volume, and the next save names that one. (An empty one
    // names none, and stays.)
    if (!UnidadImagen.empty() && !UnidadPresente(UnidadImagen)) {
        UnidadImagen = UnidadDeCarpeta(DirectorioTrabajo);
    }
    int64_t w = 0, h = 0;
    switch (RecargaImagen(!l.errorLectura, w, h)) {
    case Recarga::Leida:
        RecuperaPartida(l);
        break;
    case Recarga::Rechazada:
        RechazaImagen(w, h);
        break;
    case Recarga::Perdida:
        LamentaImagenPerdida();
        break;
    }
    teselari.MousePointer = PUNTERO_NORMAL;
}
