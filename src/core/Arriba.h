// The calls of the game's rules into the floors above them.
//
// Now and then a rule of a lower floor sets off the work of an upper one:
// the cut ends with the deal, the form's scroll bars move the board, a press
// on the board opens the pop-up panel or presses a button, the automatic
// moves redraw a button, a finish enters the game in the history book, the
// commands open the dialog and the book, and the exit saves the game. Those
// calls, and only those, go through this one table. The floor of the saved
// game fills it with the real routines (EnlazaArriba, at the start of the
// program and of every test program); an entry left empty does nothing.
#pragma once

#include <cstdint>

class Superficie;

struct LlamadasArriba {
    void (*Barajar)() = nullptr;                                   // cutting -> board
    void (*BarraHor_Change)() = nullptr;                           // core -> board
    void (*BarraVer_Change)() = nullptr;                           // core -> board
    void (*DibujaBotonesDerecho)(float x, float y) = nullptr;      // board -> panels
    void (*PulsaBoton)(int16_t boton) = nullptr;                   // board -> panels
    void (*DibuBot)(int16_t boton, Superficie &control) = nullptr; // board -> panels
    void (*AnadeHistorico)() = nullptr;                            // board -> history
    void (*AbreDialogoAbrirFic)() = nullptr;                       // panels -> dialog
    void (*AbreLibroHistorico)() = nullptr;                        // panels -> history
    void (*GuardaSesion)() = nullptr;                              // panels -> session
};

// The one table of upward calls.
LlamadasArriba &Arriba();

// Calls an entry of the table when it is filled.
template <typename... Argumentos>
void Llama(void (*rutina)(Argumentos...), Argumentos... argumentos) {
    if (rutina != nullptr) {
        rutina(argumentos...);
    }
}
