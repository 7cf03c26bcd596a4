// What the customisation dialog asks of the desktop, through hooks the
// platform layer fills (tests install doubles).
#pragma once

#include <string>
#include <vector>

class FormAbrirFic;
class Superficie;

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

void PonServiciosDialogo(const ServiciosDialogo &s);
const ServiciosDialogo &ServiciosDelDialogo();

// The volumes shown by Drive1.
std::vector<std::string> UnidadesDisponibles();

// Command 2's part: creates AbrirFic, loads it and shows it modally through
// the platform. Nothing happens without MuestraModal.
void AbreDialogoAbrirFic();
