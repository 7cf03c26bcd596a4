// AbrirFic, the customisation dialog, as plain state and handlers.
//
// The dialog edits the shared variables in place while it is open, so the
// list of grids, the difficulty and the model are live; it keeps a snapshot
// of them taken at the opening, which Reject copies back and Accept compares
// against. The platform mirrors the controls below onto widgets, calls the
// handlers on the player's events, and shows the form modally until
// Descargado() turns true. Surfaces tell their widget what they drew
// (Superficie::AlCambiar); every other change is announced by AlRefrescar,
// run wherever the dialog refreshes a panel or the form, and after each
// handler the platform may read the whole state again.
//
// A form lives for one opening only.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "dialog/ControlesDialogo.h"

// The six members of a percentage stepper: its two arrow buttons (24 x 14)
// and whether one of them is held.
struct PasosPorcentaje {
    int16_t BotonSubeX = 114;
    int16_t BotonSubeY = 25;
    int16_t BotonBajaX = 114;
    int16_t BotonBajaY = 40;
    int16_t Subiendo = 0; // flag
    int16_t Bajando = 0;  // flag
};

class FormAbrirFic {
  public:
    FormAbrirFic();
    FormAbrirFic(const FormAbrirFic &) = delete;
    FormAbrirFic &operator=(const FormAbrirFic &) = delete;

    // --- the form: borderless, 640 x 480, grey ---
    int32_t Left = 0;
    int32_t Top = 0;
    CuadroImagen Formulario;  // the form's own drawing area
    int16_t MousePointer = 0; // the form's own pointer (14 in what's-this mode)
    std::function<void()> AlRefrescar;
    bool Descargado() const { return descargado_; }

    // --- picture column ---
    CuadroImagen Pic_ImagenPuzz;
    ListaUnidades Drive1;
    ListaCarpetas Dir1;
    ListaFicheros File1;
    BotonDialogo Bot_Portapapeles;
    CuadroImagen Pic_Modelo;
    CuadroImagen Pic_Zoom;
    CuadroImagen Pic_PorcZoom;
    CuadroImagen Pic_DatosBmp;

    // --- shapes and colours ---
    CuadroImagen Pic_TiposPuz;
    std::array<CuadroImagen, 6> Pic_TipPuz;
    RectanguloDialogo Rec_MarcaTip;
    CuadroImagen Pic_Colorfon;
    std::array<CuadroImagen, 6> Pic_ColFon;
    RectanguloDialogo Rec_MarcaCol;

    // --- attraction, with the test panel ---
    CuadroImagen Pic_FactorPegado;
    CuadroImagen Pic_PorcFactorPegado;
    CuadroImagen Pic_Prueba;
    BotonDialogo Bot_Prueba;
    CuadroImagen Pic_PruebaPeq;

    // --- right column ---
    BotonDialogo Bot_Botones;
    BotonDialogo Bot_QueEs;
    CuadroImagen Pic_NroPiezas;
    ListaDialogo Lis_NroPiezas;
    CuadroImagen Pic_Cronometro;
    CuadroImagen Pic_Sonido;
    CuadroImagen Pic_Pistas;
    CuadroImagen Pic_Velocidad;
    CuadroImagen Pic_PorcVelocidad;
    CuadroImagen Pic_No;
    CuadroImagen Pic_Si;

    // --- the button placement page, indices 1..11 (0 unused) ---
    CuadroImagen Pic_LugarBotones;
    std::array<CuadroImagen, 12> Picture2;
    std::array<EtiquetaDialogo, 12> Lab_Botones;
    std::array<CuadroImagen, 12> Pic_BotLugBot;
    std::array<OpcionDialogo, 12> Opt_Siempre;
    std::array<OpcionDialogo, 12> Opt_Derecho;
    CuadroImagen Pic_SalirPicBotones;

    // --- hidden surfaces ---
    CuadroImagen Pic_Comprobar; // the chosen file at its own size, or reduced
    // The size the chosen file states, W and H of the size rules; Pic_Comprobar
    // holds a very large picture reduced.
    int32_t AnchoComprobar = 320, AltoComprobar = 240;
    CuadroImagen Pic_OriginMem; // Pic_Origin as it was at the opening
    CuadroImagen Pic_BmpVario;  // the strip of icons, arrows and keys, 318 x 24

    // --- snapshot, taken at the opening ---
    std::string CopiaFicheroImagen;
    std::string CopiaNombreImagen;
    int16_t CopiaPiezasPorLado = 0;
    int16_t CopiaTipoPieza = 0;
    std::array<bool, 12> CopiaBotonEnSiempre{};
    std::array<bool, 12> CopiaBotonEnDerecho{};
    int16_t CopiaSonido = 0;
    int16_t CopiaCronometro = 0;
    int16_t CopiaPistas = 0;
    int16_t CopiaColorFondo = 0;
    int16_t CopiaFactorPegado = 0;
    int16_t CopiaVelocidad = 0;
    int16_t CopiaZoom = 0;
    int16_t CopiaImagenValida = 0;

    // --- other members ---
    int16_t CargandoDialogo = 0; // flag: the opening is filling the dialog
    int16_t RellenandoLista = 0; // flag: File1_Click refills Lis_NroPiezas
    std::array<std::array<std::string, 4>, 4> TextosSelector; // [1..3][0..3], 12 characters
    PasosPorcentaje PasoFactorPegado;
    PasosPorcentaje PasoVelocidad;
    PasosPorcentaje PasoZoom;
    int16_t ModoQueEs = 0; // flag: the next click asks for help
    // Whether a file was evaluated by File1_Click in this opening.
    bool FicheroEvaluado = false;

    // --- opening and closing ---
    void Form_Load();
    void Pic_Si_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_No_MouseDown(int16_t Button, int16_t Shift, float X, float Y);

    // --- picture selection ---
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void File1_DblClick();
    void File1_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Bot_Portapapeles_Click();
    void CargaEnPicOrigin();

    // --- grid, shape, colour ---
    void CargaLisNroPiezas();
    void Lis_NroPiezas_Click();
    void Pic_TipPuz_Click(int16_t Index);
    void Pic_ColFon_Click(int16_t Index);
    void Pic_TipPuz_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void Pic_ColFon_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void DibujaSelector(const std::string &Titulo, int16_t Tipo, int16_t Valor, Superficie &Pic);

    // --- steppers ---
    void Pic_FactorPegado_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_FactorPegado_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_FactorPegado_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Velocidad_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Velocidad_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Velocidad_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Zoom_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Zoom_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Zoom_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    void ImprimeFactorPegado();
    void ImprimeVelocidad();
    void ImprimeZoom();

    // --- two-state selectors ---
    void Pic_Cronometro_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Sonido_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Pistas_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Cronometro_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Sonido_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Pistas_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void HaPulsado(int16_t &Valor, int16_t Tipo, Superficie &Pic);

    // --- attraction test ---
    void Bot_Prueba_Click();

    // --- button placement page ---
    void Bot_Botones_Click();
    void Pic_SalirPicBotones_Click();
    void Opt_Siempre_Click(int16_t Index);
    void Opt_Derecho_Click(int16_t Index);

    // --- what's this, tooltips, pointers ---
    void Bot_QueEs_Click();
    // What's-this mode belongs to the platform's event routing: on a press
    // on any control the platform calls this with the control's
    // WhatsThisHelpID first; in the mode the topic is shown, the mode ends
    // and true comes back, and the control's handler must not run.
    bool AtiendeQueEs(int16_t tema);
    void CompruebaPistasAbrirfic();
    // The MouseMove of the controls that only take the pointing hand.
    void PonManoSiNormal(EstadoControl &control);

    // --- shared drawing ---
    void ImprimeTexto3D(Superficie &Pic, int16_t X, int16_t Y, const std::string &Texto);
    void Refresca();

  private:
    bool descargado_ = false;
    void Descarga() { descargado_ = true; }

    void ColocaControles();
    void ColocaPaginaBotones();
    void TomaCopia();
    void AbreCarpetaInicial();
    void BuscaImagenEnLista();
    void PreparaPulsador(CuadroImagen &panel, const std::string &titulo, int16_t x, int16_t y,
                         void (FormAbrirFic::*imprime)());
    void DibujaPrueba();
    void RellenaTextosSelector();
    void EligePrimerFichero();
    void VistaPrevia();
    void FormasPermitidas(float proporcion);
    void AjustaZoom(int32_t w, int32_t h);
    void ImprimePorcentaje(Superficie &lectura, int16_t valor);
    enum class Paso { Ninguno, Sube, Baja };
    void PulsaPaso(CuadroImagen &panel, PasosPorcentaje &p, int16_t &valor, int16_t tope,
                   int16_t suelo, void (FormAbrirFic::*imprime)(), bool conLimite, float X,
                   float Y);
    void MueveSobrePaso(CuadroImagen &panel, PasosPorcentaje &p, float X, float Y);
    void SueltaPaso(CuadroImagen &panel, PasosPorcentaje &p);
    bool LimiteZoom(bool subiendo);
    void MueveSobreSelector(CuadroImagen &pic, float X, float Y);
};
