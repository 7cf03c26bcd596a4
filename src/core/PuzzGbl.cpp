#include "core/PuzzGbl.h"

#include "core/Plataforma.h"

#include <cstdio>

using namespace PuzzGbl;

void PonAjustesPrimerArranque() {
    PiezasPorLado = 8;
    TipoPieza = 1;
    PiezasDobles = 0;
    NroPiezas = 64;
    FactorPegado = 50;
    ColorFondo = 3;
    Velocidad = 50;
    Zoom = 100;
    Sonido = 1;
    Cronometro = 2;
    Pistas = 1;
    BotonEnSiempre.fill(true);
}

namespace {

// Settings, picture and course of the game as at the first run.
void RestauraAjustes() {
    PonAjustesPrimerArranque();
    FicheroImagen.assign(1, ' ');
    NombreImagen.clear();
    UnidadImagen.clear();
    CarpetaImagen.clear();
    ImagenValida = FALSO;
    DirectorioTrabajo.clear();
    BotonEnDerecho.fill(false);
}

void RestauraGeometria() {
    AnchoPieza = AltoPieza = 0;
    AnchoPuzzle = AltoPuzzle = 0;
    MargenX = MargenY = 0;
    AnchoPiezaTotal = AltoPiezaTotal = 0;
    AnchoPantalla = 1024;
    AltoPantalla = 768;
}

void RestauraPartida() {
    PiezasColocadas = 0;
    SegundosCronometro = 0;
    RelojEnMarcha = FALSO;
    PartidaValida = FALSO;
    PuzzleCompleto = FALSO;
    Dificultad = 0.0f;
    NombreJugador = std::string(9, '\0'); // untyped: nine NULs, as a fixed string starts
    ModeloVisible = false;
    SesionRestaurando = FALSO;
    PuzzleCambiado = FALSO;
    Piezas.assign(1, Pieza{});
    OrdenPiezas.assign(1, 0);
    Historico.assign(1, RegistroHistorico{});
    NroRegistrosHistorico = 0;
    LineasHistoricoPendientes.clear();
}

void RestauraModos() {
    ModoColocadas = ModoOrdenar = ModoResolver = FALSO;
    BotonPulsado.fill(FALSO);
    PiezaLevantada = PiezaSoltandose = ArrastrandoPanel = FALSO;
    CursorTrabajo = CursorTrabajoNuevo = 0;
    CursorPanel = CursorPanelNuevo = 0;
    ErrorFichero = 0;
    MensajeLineas = MensajeBotones = RespuestaMensaje = 0;
}

void RestauraTrabajo() {
    PiezaTemporal = Pieza{};
    AuxColumna = AuxFila = 0.0f;
    PosicionX = PosicionY = 0.0f;
    AnteriorX = AnteriorY = 0;
    PulsacionX = PulsacionY = 0;
    PanelX = PanelY = 0;
    AuxPanel = 0;
    DatosSonido.clear();
    for (Region *r : {&RegionAnterior, &RegionNueva, &RegionRecorte, &RegionPieza, &RegionSuelta}) {
        SetRectRgn(*r, 0, 0, 0, 0);
    }
    RectIzquierda = RectArriba = RectDerecha = RectAbajo = 0;
    AjusteX = AjusteY = 0;
    ColorContraste = 0;
}

// The row of the grid list: sides in two characters, count in three.
std::string FilaNroPiezas(int lado, bool dobles) {
    char texto[64];
    if (dobles) {
        std::snprintf(texto, sizeof texto, "%2d x %2d x 2 -> %3d", lado, lado, 2 * lado * lado);
    } else {
        std::snprintf(texto, sizeof texto, "%2d x %2d -> %3d", lado, lado, lado * lado);
    }
    return CadenaFija(texto, 18);
}

const bool iniciado = (RestauraValoresIniciales(), true);

} // namespace

std::string CadenaFija(const std::string &texto, size_t caracteres) {
    std::string r;
    size_t contados = 0;
    for (size_t i = 0; i < texto.size();) {
        size_t largo = 1;
        unsigned char c = static_cast<unsigned char>(texto[i]);
        if (c >= 0xF0) {
            largo = 4;
        } else if (c >= 0xE0) {
            largo = 3;
        } else if (c >= 0xC0) {
            largo = 2;
        }
        if (contados == caracteres) {
            break;
        }
        r.append(texto, i, largo);
        ++contados;
        i += largo;
    }
    r.append(caracteres - contados, ' ');
    return r;
}

void LlenaTablas() {
    NuevaLinea = "\r\n";
    ColoresFondo = {0xFFFFFF, 0x00FFFF, 0x008000, 0x000080, 0xFF0000, 0x000000};
    static const char *const textos[12] = {"",
                                           "Ayuda de la aplicación",
                                           "Personalizar la aplicación",
                                           "Mostrar modelo",
                                           "Barajar piezas",
                                           "Mostrar piezas ocultas",
                                           "Mostrar piezas colocadas",
                                           "Ordenar piezas",
                                           "Tutor de juego",
                                           "Resolver puzzle",
                                           "Histórico de puzzles",
                                           "Salir de la aplicación"};
    TextoBotones[0].clear();
    for (int i = 1; i <= 11; ++i) {
        TextoBotones[i] = CadenaFija(textos[i], 30);
    }
    for (auto &t : TextoNroPiezas) {
        t.clear();
    }
    for (int lado = 3; lado <= 20; ++lado) {
        TextoNroPiezas[lado] = FilaNroPiezas(lado, false);
        TextoNroPiezas[lado + 20] = FilaNroPiezas(lado, true);
    }
}

void RestauraValoresIniciales() {
    RestauraAjustes();
    RestauraGeometria();
    RestauraPartida();
    RestauraModos();
    RestauraTrabajo();
    LlenaTablas();
    VueltasPorSegundo = 0.0;
    teselari.Inicializa();
    InstalaPlataforma(ServiciosPlataforma{});
    (void)iniciado;
}
