// What the game asks of the desktop: one table of services.
//
// The Qt layer fills the table and installs it whole at start
// (InstalaPlataforma); a test installs its own, doubles where it needs them.
// RestauraValoresIniciales puts the empty table back. With an entry left
// empty a message answers at once as if closed by a key, no sound plays, no
// event is let through, the clock is the machine's, help shows nothing,
// every picture file is missing, text is measured as 0 and not drawn, and
// neither the dialog nor the book is shown.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Programa.h"

class FormAbrirFic;
class FormHistoric;
class Rotulador;
class Superficie;

// The date and the time of day of a history record: "dd/mm/yyyy" and
// "hh:mm:ss".
struct FechaHora {
    std::string Fecha;
    std::string Hora;
};

// What the customisation dialog asks of the desktop.
struct ServiciosDialogo {
    // Shows the dialog modally, its Form_Load already run, and returns when
    // one of its closing controls has unloaded it (Descargado()). Without
    // it the dialog is not shown and command 2 changes nothing.
    void (*MuestraModal)(FormAbrirFic &dialogo) = nullptr;
    // Fills the strip Pic_BmpVario (318 x 24) as the form is created.
    void (*CargaTira)(Superficie &tira) = nullptr;
    // Whether the clipboard holds a bitmap, and the bitmap itself (the
    // surface takes its size); false when there is none.
    bool (*HayImagenPortapapeles)() = nullptr;
    bool (*TomaImagenPortapapeles)(Superficie &destino) = nullptr;
    // The mounted volumes, by mount point. Without it: "/" and the home
    // folder's volume.
    std::vector<std::string> (*Unidades)() = nullptr;
};

// What the history book asks of the desktop.
struct ServiciosHistorico {
    // Shows the book modally, its Form_Load already run, and returns once
    // it is unloaded (Descargado()) or closed by the desktop. Without it the
    // book is loaded and not shown.
    void (*MuestraModal)(FormHistoric &libro) = nullptr;
    // Fills the page bitmap (275 x 344) and the labels of a record
    // (124 x 298) as the form is created. Without it the pages are blank.
    void (*CargaImagenes)(Superficie &pagina, Superficie &etiquetas) = nullptr;
};

struct ServiciosPlataforma {
    // Shows the modal message and returns the answer: true for "Aceptar".
    // Called with lineas and botones already in MensajeLineas and
    // MensajeBotones.
    bool (*Mensaje)(const std::string &titulo, const std::string &texto) = nullptr;
    // Starts clip 1..12 asynchronously, cutting off the one still playing.
    void (*Sonido)(int16_t clip) = nullptr;
    // Lets pending events run (may re-enter any handler).
    void (*Eventos)() = nullptr;
    // Unloads the main form and ends the process (command 11).
    void (*Termina)() = nullptr;
    // The clock of the day, seconds since midnight (services/Reloj.h).
    double (*Reloj)() = nullptr;
    // The date and time a finished game is entered with (local time).
    FechaHora (*Calendario)() = nullptr;
    // Opens the help window on a topic (services/Ayuda.h).
    void (*MuestraAyuda)(int16_t tema) = nullptr;
    // Loads a picture file into a surface (core/Programa.h, CargaImagen).
    CargaDeImagen (*CargaImagen)(const std::string &fichero, Superficie &destino) = nullptr;
    // Fonts, measuring and drawing text into a surface.
    Rotulador *Texto = nullptr;
    // The program's folder, where the sample pictures stand.
    std::string DirectorioPrograma{};
    ServiciosDialogo Dialogo{};
    ServiciosHistorico Historico{};
};

// Installs the services whole (a copy is kept).
void InstalaPlataforma(const ServiciosPlataforma &s);
const ServiciosPlataforma &Plataforma();

// Lets pending events run: the one re-entry point of the program.
void PermiteEventos();
