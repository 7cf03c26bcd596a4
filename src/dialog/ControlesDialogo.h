// The kinds of control the dialogs add to the picture boxes and scroll bars
// of the main form: buttons, outlines, option buttons, labels and lists.
//
// The logic reads and writes them here; the platform mirrors them onto
// widgets (what every control carries, and caption, list contents and
// ListIndex) and feeds the player's events back to the form's handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/Controles.h"

// A push button.
struct BotonDialogo : ControlConTamano {
    std::string Caption;
    Fuente Letra;
};

// A rectangle outline (the red marks of the chosen boxes).
struct RectanguloDialogo : ControlConTamano {
    Color BorderColor = 0x0000FF;
    int16_t BorderWidth = 3;
};

// An option button; the two of one frame exclude each other.
struct OpcionDialogo : ControlConTamano {
    std::string Caption;
    bool Value = false;
};

// A label.
struct EtiquetaDialogo : ControlConTamano {
    std::string Caption;
    Fuente Letra;
    Color ForeColor = COLOR_NEGRO;
    Color BackColor = 0xC0C0C0;
};

// A list box. Assigning ListIndex to another value than it holds runs Click
// at once, as a click of the player does; -1 is nothing selected and runs
// nothing. Clearing or refilling leaves -1 and raises no click.
class ListaDialogo : public ControlConTamano {
  public:
    const std::vector<std::string> &Elementos() const { return elementos_; }
    int32_t ListCount() const { return static_cast<int32_t>(elementos_.size()); }
    const std::string &List(int32_t i) const { return elementos_.at(static_cast<size_t>(i)); }
    int32_t ListIndex() const { return indice_; }
    // Out of range counts as -1.
    void PonListIndex(int32_t i);
    // The player's click on entry i: selects it and runs Click, also when it
    // was selected already.
    void Pulsa(int32_t i);
    // The selected entry, or empty.
    std::string Text() const;
    void Clear();
    void AddItem(const std::string &texto);

    std::function<void()> Click;
    // Told whenever the entries or the selection change, for the platform.
    std::function<void()> AlCambiar;

  protected:
    void Rellena(std::vector<std::string> elementos);
    void Avisa() {
        if (AlCambiar) {
            AlCambiar();
        }
    }

  private:
    std::vector<std::string> elementos_;
    int32_t indice_ = -1;
};

// The drive list: the mounted volumes, by their mount points. Assigning
// another Drive runs Change.
class ListaUnidades : public ListaDialogo {
  public:
    const std::string &Drive() const { return drive_; }
    // A mounted drive not in the list joins it; one that is not there is
    // ignored.
    void PonDrive(const std::string &unidad);
    // Fills the list with the volumes the platform reports, the drive
    // given selected, without a change.
    void Inicia(const std::string &unidad);
    void Refresh();
    std::function<void()> Change;

  private:
    std::string drive_;
};

// The folder list: the folders from the root down to Path, then Path's
// sub-folders, sorted. Assigning another Path runs Change.
class ListaCarpetas : public ListaDialogo {
  public:
    const std::string &Path() const { return path_; }
    // Returns 0, or 76 when the folder does not exist (Path then stays).
    int16_t PonPath(const std::string &carpeta);
    // The full path of entry i; Path itself is entry IndiceActual().
    const std::string &Ruta(int32_t i) const { return rutas_.at(static_cast<size_t>(i)); }
    int32_t IndiceActual() const { return actual_; }
    // Opens entry i (the player's double click): into a sub-folder or up.
    void Abre(int32_t i);
    // The parent folder, when there is one.
    void Sube();
    void Refresh();
    std::function<void()> Change;

  private:
    std::string path_;
    std::vector<std::string> rutas_;
    int32_t actual_ = -1;
};

// The file list: the files of Path that match Pattern ("*.bmp;*.jpg"),
// without regard to case, sorted as the platform sorts a file list.
class ListaFicheros : public ListaDialogo {
  public:
    std::string Pattern = "*.*";
    const std::string &Path() const { return path_; }
    // Fills the list from the folder; an unreadable one leaves it empty.
    void PonPath(const std::string &carpeta);
    void Refresh();
    std::function<void()> DblClick;

  private:
    std::string path_;
};

// Whether a file name matches a pattern of ';'-separated wildcards ('*' and
// '?'), without regard to case.
bool CoincideConPatron(const std::string &nombre, const std::string &patron);
