// Historic, the history book, as plain state and handlers.
//
// A modal form of 541 x 344 on the cover's dark red, whose own image
// (Formulario) keeps what is drawn on it. Its first page describes the
// puzzle in play and takes the player's name; behind it four sections list
// every record of Historico, two to a spread, by date, by name, by picture
// and by difficulty. The platform mirrors the controls below onto widgets,
// feeds the mouse and the name back to the handlers, and closes the form
// once Descargado() turns true. A form lives for one opening only.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/Controles.h"
#include "history/ListaOrdenada.h"

// Tex_Nombre: a text box, as plain state.
struct TextoNombre : ControlConTamano {
    TextoNombre() {
        Width = 89;
        Height = 19;
        Visible = false;
    }
    std::string Text;
};

class FormHistoric {
  public:
    static constexpr int32_t ANCHO = 541;
    static constexpr int32_t ALTO = 344;
    static constexpr Color COLOR_TAPA = 0x000080;

    // Creates the controls and lays the page bitmap on the form's image.
    FormHistoric();
    FormHistoric(const FormHistoric &) = delete;
    FormHistoric &operator=(const FormHistoric &) = delete;

    // --- the form: its place on the screen, its own image and pointer ---
    int32_t Left = 0;
    int32_t Top = 0;
    CuadroImagen Formulario;
    bool Descargado() const { return descargado_; }

    // --- controls ---
    std::array<CuadroImagen, 3> Pic_Tapa; // 1 left margin, 2 right margin
    CuadroImagen Pic_Parche1;             // the labels of a record, right page
    CuadroImagen Pic_Parche2;             // the same, left page
    TextoNombre Tex_Nombre;
    ListaOrdenada Lis_Orden2, Lis_Orden3, Lis_Orden4;

    // --- members ---
    int16_t MarcaLibro = 0;     // 0 the first page, 1..4 a section
    int16_t ContadorPagina = 0; // places of the section shown so far
    int16_t MedioLibro = 0;     // 0 left page, 251 right page
    int16_t RegistroPagina = 0; // the record DibujaRegistro writes
    int16_t ListaNombreLlena = 0, ListaImagenLlena = 0, ListaTiempoLlena = 0; // flags

    // --- routines ---
    void Form_Load();
    void MuestraPuzzleActual();
    void MuestraPorFecha();
    void MuestraPorNombre();
    void MuestraPorImagen();
    void MuestraPorDificultad();
    void DibujaRegistro();
    void PaginaSiguiente();
    void PaginaAnterior();

    // --- events ---
    void Form_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void Form_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pic_Tapa_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void Tex_Nombre_Change();

  private:
    bool descargado_ = false;

    void PonTapas(int16_t seccion);
    void MuestraParches(bool visibles);
    void PaginasEnBlanco();
    void Escribe(int32_t x, int32_t y, const std::string &texto, int32_t derecha);
    void AbreSeccion(int16_t seccion);
    void MuestraOrdenada(int16_t seccion);
    void LlenaLista(int16_t seccion);
    void MuestraSeccion(int16_t seccion);
    void AbreSeccionPorPestana(int16_t seccion);
};
