// PuzzGbl: the one state of the one game.
//
// Every shared variable of the game lives here, flat, under the name the
// game has always used and with its width. Flags are int16_t with true = -1
// and false = 0, toggled by complement. Arrays of pieces and buttons begin at
// 1: element 0 exists and is never used. RestauraValoresIniciales() puts
// everything back as it stands at the first instant of the program; it is
// the only place that states the defaults.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/FormTeselari.h"
#include "raster/Region.h"

constexpr int16_t VERDADERO = -1;
constexpr int16_t FALSO = 0;

// One piece: where its cell stands now and where it belongs.
struct Pieza {
    int32_t X = 0;
    int32_t Y = 0;
    int32_t XCorrecta = 0;
    int32_t YCorrecta = 0;
    bool operator==(const Pieza &) const = default;
};

// One puzzle solved by hand, as the history book keeps it. The four strings
// are fixed, blank padded or cut: Fecha 10, Hora 8, Imagen 12 and Nombre 9
// characters.
struct RegistroHistorico {
    std::string Fecha;
    std::string Hora;
    std::string Imagen;
    int16_t AnchoPuzzle = 0;
    int16_t AltoPuzzle = 0;
    int16_t PiezasPorLado = 0;
    int16_t TipoPieza = 0;
    int16_t NroPiezas = 0;
    int16_t AnchoPieza = 0;
    int16_t AltoPieza = 0;
    float Dificultad = 0.0f;
    int32_t Segundos = 0;
    int16_t FactorPegado = 0;
    std::string Nombre;
    bool operator==(const RegistroHistorico &) const = default;
};

namespace PuzzGbl {

// --- settings ---
inline int16_t PiezasPorLado; // 3..20 cells per side
inline int16_t TipoPieza;     // 0..5, the cut
inline int16_t PiezasDobles;  // 1 exactly when TipoPieza is 2 or more
inline int16_t NroPiezas;     // 9..800
inline int16_t FactorPegado;  // 0..100, attraction in percent
inline int16_t ColorFondo;    // 0..5, index into ColoresFondo
inline int16_t Velocidad;     // 0..100, 100 is fastest
inline int16_t Zoom;          // 5..995 percent
inline int16_t Sonido;        // 1 on, 2 off
inline int16_t Cronometro;    // 1 visible, 2 hidden
inline int16_t Pistas;        // 1 on, 2 off

// --- the picture in use ---
inline std::string FicheroImagen;
inline std::string NombreImagen;
inline std::string UnidadImagen;
inline std::string CarpetaImagen;
inline int16_t ImagenValida;
inline std::string DirectorioTrabajo;

// --- grid geometry, derived ---
inline int16_t AnchoPieza, AltoPieza;
inline int16_t AnchoPuzzle, AltoPuzzle;
inline int32_t MargenX, MargenY;
inline int32_t AnchoPiezaTotal, AltoPiezaTotal;
inline int16_t AnchoPantalla, AltoPantalla;

// --- course of the game ---
inline int16_t PiezasColocadas;
inline int32_t SegundosCronometro;
inline int16_t RelojEnMarcha;
inline int16_t PartidaValida;
inline int16_t PuzzleCompleto;
inline float Dificultad;
inline std::string NombreJugador; // 9 characters, blank padded
inline bool ModeloVisible;
inline int16_t SesionRestaurando;
inline int16_t PuzzleCambiado;

// --- modes and transient flags ---
inline int16_t ModoColocadas;
inline int16_t ModoOrdenar;
inline int16_t ModoResolver;
inline std::array<int16_t, 12> BotonPulsado; // 1..11
inline int16_t PiezaLevantada;
inline int16_t PiezaSoltandose;
inline int16_t ArrastrandoPanel;
inline int16_t CursorTrabajo, CursorTrabajoNuevo;
inline int16_t CursorPanel, CursorPanelNuevo;
inline int16_t ErrorFichero;
inline int16_t MensajeLineas, MensajeBotones, RespuestaMensaje;

// --- pieces ---
inline std::vector<Pieza> Piezas;        // 1..NroPiezas
inline std::vector<int16_t> OrdenPiezas; // 1..NroPiezas, element 1 on top

// --- the history book: records at 1..NroRegistrosHistorico, oldest first ---
inline std::vector<RegistroHistorico> Historico;
inline int16_t NroRegistrosHistorico;
// The lines of records that TESEL32.HIS could not take when they were
// added (a full disk); the next record that is written takes them along.
inline std::string LineasHistoricoPendientes;

// --- working storage, valid within one operation ---
inline Pieza PiezaTemporal;
inline float AuxColumna, AuxFila;
inline float PosicionX, PosicionY;
inline int32_t AnteriorX, AnteriorY;
inline int16_t PulsacionX, PulsacionY;
inline int16_t PanelX, PanelY;
inline int16_t AuxPanel;
inline std::string DatosSonido;
inline Region RegionAnterior, RegionNueva, RegionRecorte, RegionPieza, RegionSuelta;
inline int32_t RectIzquierda, RectArriba, RectDerecha, RectAbajo;
inline int16_t AjusteX, AjusteY; // the one-pixel correction of the templates

// --- constant tables ---
inline std::string NuevaLinea;
inline std::array<int32_t, 6> ColoresFondo;
inline int32_t ColorContraste;
inline std::array<std::string, 12> TextoBotones;   // 1..11, 30 characters
inline std::array<std::string, 41> TextoNroPiezas; // 3..20 and 23..40, 18 characters
inline std::array<bool, 12> BotonEnSiempre;        // 1..11
inline std::array<bool, 12> BotonEnDerecho;        // 1..11

// --- the machine ---
inline double VueltasPorSegundo;

// --- the main form ---
inline FormTeselari teselari;

} // namespace PuzzGbl

// Puts every shared variable and the main form's controls back as they are
// at the first instant of the program, constant tables included.
void RestauraValoresIniciales();

// The settings of a first run: 8 x 8 irregular pieces, attraction 50, the
// dark red background, the middle speed, zoom 100, sound, the chronometer
// shown, tooltips, and every button in the always-visible panel.
void PonAjustesPrimerArranque();

// Fills the constant tables: NuevaLinea, ColoresFondo, TextoBotones,
// TextoNroPiezas.
void LlenaTablas();

// A string cut or blank padded on the right to a fixed number of characters
// (characters, not bytes: the texts are UTF-8).
std::string CadenaFija(const std::string &texto, size_t caracteres);
