// What the history book asks of the desktop, through hooks the platform
// layer fills (tests install doubles), and its opening from command 10.
#pragma once

class FormHistoric;
class Superficie;

struct ServiciosHistorico {
    // Shows the book modally, its Form_Load already run, and returns once
    // it is unloaded (Descargado()) or closed by the desktop. Without it the
    // book is loaded and not shown.
    void (*MuestraModal)(FormHistoric &libro) = nullptr;
    // Fills the page bitmap (275 x 344) and the labels of a record
    // (124 x 298) as the form is created. Without it the pages are blank.
    void (*CargaImagenes)(Superficie &pagina, Superficie &etiquetas) = nullptr;
};

void PonServiciosHistorico(const ServiciosHistorico &s);
const ServiciosHistorico &ServiciosDelHistorico();

// Command 10's part: creates Historic, loads it and shows it modally
// through the platform.
void AbreLibroHistorico();
