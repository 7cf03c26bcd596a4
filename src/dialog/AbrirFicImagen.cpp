// AbrirFic's picture column: drives, folders, files, the preview, the zoom
// that brings a picture within the limits, and the clipboard.
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "core/TextoIni.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/GuardaBmp.h"
#include "dialog/ServiciosDialogo.h"
#include "dialog/TextosDialogo.h"
#include "raster/Raster.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

// A side as the file states it, within what the zoom rules can count with.
int32_t MedidaDeclarada(int64_t lado) {
    return static_cast<int32_t>(std::clamp<int64_t>(lado, 1, int64_t{1} << 30));
}

std::string Une(const std::string &carpeta, const std::string &nombre) {
    std::string ruta = carpeta;
    while (!ruta.empty() && ruta.back() == ' ') {
        ruta.pop_back();
    }
    while (!ruta.empty() && ruta.front() == ' ') {
        ruta.erase(ruta.begin());
    }
    if (ruta.empty() || ruta.back() != '/') {
        ruta += '/';
    }
    return ruta + nombre;
}

// The mount point the process's current folder stands on.
std::string UnidadActual() {
    std::error_code ec;
    return UnidadDeCarpeta(std::filesystem::current_path(ec).string());
}

} // namespace

void FormAbrirFic::Drive1_Change() {
    ReproduceSonido(Clips::Lista);
    std::error_code ec;
    if (UnidadActual() != Drive1.Drive() && ::chdir(Drive1.Drive().c_str()) != 0) {
        return; // a drive that is not ready changes nothing further
    }
    Dir1.PonPath(std::filesystem::current_path(ec).string());
}

void FormAbrirFic::Dir1_Change() {
    ReproduceSonido(Clips::Lista);
    if (::chdir(Dir1.Path().c_str()) != 0) {
        // The folder stays shown; the current folder is where it was.
    }
    File1.PonPath(Dir1.Path());
    File1.MousePointer = PUNTERO_NORMAL;
}

void FormAbrirFic::File1_Click() {
    if (File1.ListIndex() == -1) {
        return; // no file to evaluate
    }
    if (CargandoDialogo == FALSO) {
        ReproduceSonido(Clips::Lista);
    }
    const std::string nombre = File1.Text();
    if (!CadenaEscribible(Une(Dir1.Path(), nombre))) {
        // The saved game could not keep this path: the pick is not taken,
        // and the picture and its names stay as they were.
        ReproduceSonido(Clips::Rechazo);
        MuestraMensaje(MensajeNombreNoEscribible());
        return;
    }
    Pic_Comprobar.QuitaImagen();
    Pic_Comprobar.CambiaTamano(320, 240);
    Pic_Comprobar.QuitaImagen();
    // A file that can't be read shows as a blank 320 x 240; one whose stated
    // size is beyond any zoom is not decoded, and that size is measured.
    const CargaDeImagen carga = CargaImagen(Une(Dir1.Path(), nombre), Pic_Comprobar);
    FicheroEvaluado = true;
    const int32_t w = MedidaDeclarada(carga.Ancho), h = MedidaDeclarada(carga.Alto);
    const bool desmesurada = carga.Estado == EstadoCarga::Desmesurada;
    // A picture not decoded is rebuilt from what stands: the blank.
    AnchoComprobar = desmesurada ? Pic_Comprobar.Ancho() : w;
    AltoComprobar = desmesurada ? Pic_Comprobar.Alto() : h;
    const float r = static_cast<float>(w) / static_cast<float>(h);
    VistaPrevia();
    FormasPermitidas(r);
    if (!(CargandoDialogo != FALSO && ImagenValida != FALSO)) {
        FicheroImagen = Une(Dir1.Path(), nombre);
        NombreImagen = nombre;
        UnidadImagen = Drive1.Drive();
        CarpetaImagen = Dir1.Path();
        Zoom = 100;
        ImprimeZoom();
        AjustaZoom(w, h);
        if (Zoom < 5 || Zoom > 995 || desmesurada) {
            Pic_DatosBmp.Cls();
            ReproduceSonido(Clips::Rechazo);
            MuestraMensaje(MensajeImagenNoValida(w, h));
            ImagenValida = FALSO;
            return;
        }
        if (Zoom != 100) {
            ImprimeZoom();
            MuestraMensaje(MensajeFueraDeLimites(w, h));
        }
        ImagenValida = VERDADERO;
    }
    CargaEnPicOrigin();
    CalculaPiezas();
    RellenandoLista = VERDADERO;
    CargaLisNroPiezas();
    RellenandoLista = FALSO;
}

// The preview keeps the proportions, in the top left corner, stretched up
// as well as down.
void FormAbrirFic::VistaPrevia() {
    const float r = static_cast<float>(AnchoComprobar) / static_cast<float>(AltoComprobar);
    const float cuatroTercios = 4.0f / 3.0f;
    int32_t a = 240, b = 180;
    if (cuatroTercios > r) {
        a = Redondea(static_cast<float>(r * 180.0f));
    } else if (cuatroTercios < r) {
        b = Redondea(static_cast<float>(240.0f / r));
    }
    Pic_Modelo.Cls();
    SetStretchBltMode(Pic_Modelo, COLORONCOLOR);
    StretchBlt(Pic_Modelo, 0, 0, a, b, Pic_Comprobar, 0, 0, Pic_Comprobar.Ancho(),
               Pic_Comprobar.Alto(), SRCCOPY);
}

// Pieces with knobs need a picture not too far from square; stars a little
// less so. A shape the picture excludes gives way to rectangles.
void FormAbrirFic::FormasPermitidas(float r) {
    Pic_TipPuz[1].Enabled = true;
    if (!(0.476f <= r && r <= 2.1f)) {
        if (TipoPieza == 1) {
            Pic_TipPuz_Click(0);
        }
        Pic_TipPuz[1].Enabled = false;
    }
    Pic_TipPuz[5].Enabled = true;
    if (!(0.416f <= r && r <= 2.4f)) {
        if (TipoPieza == 5) {
            Pic_TipPuz_Click(0);
        }
        Pic_TipPuz[5].Enabled = false;
    }
}

// Zoom up for a picture too small, then down for one too large, each rule
// replacing what stood before; both look at the file's own size only.
void FormAbrirFic::AjustaZoom(int32_t w, int32_t h) {
    int32_t z = Zoom;
    if (w < 320) {
        z = Redondea(32000.0 / w + 1);
    }
    if (h < 240) {
        z = Redondea(24000.0 / h + 1);
    }
    if (z != 100) {
        z = z + 5 - z % 5;
    }
    if (w > 1024) {
        z = Redondea(102400.0 / w - 1);
    }
    if (h > 768) {
        z = Redondea(76800.0 / h - 1);
    }
    if (z != 100) {
        z = z - z % 5;
    }
    Zoom = static_cast<int16_t>(z);
}

void FormAbrirFic::CargaEnPicOrigin() {
    Superficie &o = teselari.Pic_Origin;
    const int32_t w = Int(static_cast<double>(AnchoComprobar) * Zoom / 100.0);
    const int32_t h = Int(static_cast<double>(AltoComprobar) * Zoom / 100.0);
    o.QuitaImagen();
    o.CambiaTamano(w, h);
    SetStretchBltMode(o, COLORONCOLOR);
    StretchBlt(o, 0, 0, w, h, Pic_Comprobar, 0, 0, Pic_Comprobar.Ancho(), Pic_Comprobar.Alto(),
               SRCCOPY);
    Superficie imagen = o;
    imagen.AlCambiar = nullptr;
    o.AsignaImagen(imagen);
    Pic_DatosBmp.Cls();
    Pic_DatosBmp.CurrentX = 3;
    Pic_DatosBmp.CurrentY = 13;
    Pic_DatosBmp.Print("Ancho: " + std::to_string(w));
    Pic_DatosBmp.CurrentX = 3;
    Pic_DatosBmp.CurrentY = 35;
    Pic_DatosBmp.Print("Alto: " + std::to_string(h));
}

void FormAbrirFic::File1_DblClick() {
    File1_Click();
}

void FormAbrirFic::File1_MouseMove(int16_t, int16_t, float, float) {
    if (File1.ListCount() == 0) {
        File1.MousePointer = PUNTERO_NORMAL;
    } else {
        PonManoSiNormal(File1);
    }
}

void FormAbrirFic::Bot_Portapapeles_Click() {
    const ServiciosDialogo &s = Plataforma().Dialogo;
    if (s.HayImagenPortapapeles == nullptr || s.TomaImagenPortapapeles == nullptr ||
        !s.HayImagenPortapapeles()) {
        return;
    }
    Superficie imagen;
    imagen.TomaTamanoDeImagen = true;
    if (!s.TomaImagenPortapapeles(imagen)) {
        return;
    }
    // A folder that can't be written: the list shows what there is.
    GuardaBmp(imagen, "teseport.bmp");
    File1.Refresh();
    for (int32_t i = 0; i < File1.ListCount(); ++i) {
        if (File1.List(i) == "teseport.bmp") {
            File1.PonListIndex(i);
        }
    }
}
