// AbrirFic's opening: the snapshot, the folder, the panels drawn.
#include "core/Controles.h"
#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/ServiciosDialogo.h"
#include "panels/Paneles.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

constexpr Color GRIS_OSCURO = 0x808080;
constexpr Color AZUL = 0xFF0000;
constexpr int16_t ERROR_RUTA = 76;

} // namespace

void FormAbrirFic::Form_Load() {
    // Centred; a half pixel goes to the even side.
    Left = Redondea((AnchoPantalla - Formulario.Ancho()) / 2.0);
    Top = Redondea((AltoPantalla - Formulario.Alto()) / 2.0);
    Formulario.Caja(0, 0, 639, 479, GRIS_OSCURO);
    Formulario.Line(0, 0, 639, 0, COLOR_BLANCO);
    Formulario.Line(0, 0, 0, 479, COLOR_BLANCO);
    CargandoDialogo = VERDADERO;
    Pic_OriginMem.AsignaImagen(teselari.Pic_Origin);
    TomaCopia();
    AbreCarpetaInicial();
    BuscaImagenEnLista();

    ImprimeTexto3D(Pic_ImagenPuzz, 83, 6, "Imagen del puzzle");
    const auto hay = Plataforma().Dialogo.HayImagenPortapapeles;
    Bot_Portapapeles.Enabled = hay != nullptr && hay();

    ImprimeTexto3D(Pic_NroPiezas, 43, 5, "Número de piezas");
    CargaLisNroPiezas();

    ImprimeTexto3D(Pic_TiposPuz, 28, 7, "Forma de las piezas");
    for (int16_t i = 0; i < 6; ++i) {
        BitBlt(Pic_TipPuz[i], 2, 4, 26, 22, Pic_BmpVario, i * 26 + 1, 1, SRCCOPY);
    }
    Pic_TipPuz_Click(TipoPieza);

    ImprimeTexto3D(Pic_Colorfon, 38, 7, "Color del fondo");
    Pic_ColFon_Click(ColorFondo);

    PreparaPulsador(Pic_FactorPegado, "Factor de atracción", 28, 5,
                    &FormAbrirFic::ImprimeFactorPegado);
    DibujaPrueba();
    PreparaPulsador(Pic_Velocidad, "Velocidad de juego", 28, 5, &FormAbrirFic::ImprimeVelocidad);
    PreparaPulsador(Pic_Zoom, "Zoom de la imagen", 28, 5, &FormAbrirFic::ImprimeZoom);

    RellenaTextosSelector();
    Pic_Cronometro.Move(449, 196);
    DibujaSelector("Cronómetro", 1, Cronometro, Pic_Cronometro);
    Pic_Sonido.Move(449, 241);
    DibujaSelector("Sonido", 2, Sonido, Pic_Sonido);
    Pic_Pistas.Move(449, 286);
    DibujaSelector("Información Botones", 3, Pistas, Pic_Pistas);

    BitBlt(Pic_No, 3, 3, 48, 48, teselari.Pic_BmpBoton, 540, 1, SRCCOPY);
    BitBlt(Pic_Si, 3, 3, 48, 48, teselari.Pic_BmpBoton, 589, 1, SRCCOPY);

    Refresca();
    CompruebaPistasAbrirfic();
    CargandoDialogo = FALSO;
    teselari.MousePointer = PUNTERO_NORMAL;
}

void FormAbrirFic::TomaCopia() {
    CopiaFicheroImagen = FicheroImagen;
    CopiaNombreImagen = NombreImagen;
    CopiaPiezasPorLado = PiezasPorLado;
    CopiaTipoPieza = TipoPieza;
    CopiaBotonEnSiempre = BotonEnSiempre;
    CopiaBotonEnDerecho = BotonEnDerecho;
    CopiaSonido = Sonido;
    CopiaCronometro = Cronometro;
    CopiaPistas = Pistas;
    CopiaColorFondo = ColorFondo;
    CopiaFactorPegado = FactorPegado;
    CopiaVelocidad = Velocidad;
    CopiaZoom = Zoom;
    CopiaImagenValida = ImagenValida;
}

// A drive or folder that fails changes nothing and the opening goes on; a
// drive that is not there gives way to the working folder's volume, and a
// folder that is gone falls back on the working folder.
void FormAbrirFic::AbreCarpetaInicial() {
    Drive1.PonDrive(UnidadPresente(UnidadImagen) ? UnidadImagen
                                                 : UnidadDeCarpeta(DirectorioTrabajo));
    if (Dir1.PonPath(CarpetaImagen) == ERROR_RUTA) {
        Dir1.PonPath(DirectorioTrabajo);
    }
}

// The stored picture is taken again, quietly; when the folder has files but
// not that one, the first is taken as if the player had clicked it.
void FormAbrirFic::BuscaImagenEnLista() {
    for (int32_t i = 0; i < File1.ListCount(); ++i) {
        if (File1.List(i) == NombreImagen) {
            File1.PonListIndex(i);
            return;
        }
    }
    if (File1.ListCount() > 0) {
        CargandoDialogo = FALSO;
        File1.PonListIndex(0);
        CargandoDialogo = VERDADERO;
    }
}

void FormAbrirFic::ImprimeTexto3D(Superficie &Pic, int16_t X, int16_t Y, const std::string &Texto) {
    Pic.Letra.Negrita = false;
    Pic.CurrentX = X - 1;
    Pic.CurrentY = Y - 1;
    Pic.ForeColor = COLOR_BLANCO;
    Pic.Print(Texto);
    Pic.CurrentX = X;
    Pic.CurrentY = Y;
    Pic.ForeColor = AZUL;
    Pic.Print(Texto);
    const double w = Pic.TextWidth(Texto);
    Pic.Caja(X - 5, Y - 3, X - 5 + w + 7, Y - 3 + 17, COLOR_BLANCO);
    Pic.Caja(X - 4, Y - 2, X - 4 + w + 7, Y - 2 + 17, AZUL);
}

void FormAbrirFic::CompruebaPistasAbrirfic() {
    const bool con = Pistas == 1;
    Pic_Si.ToolTipText = con ? "Aceptar los cambios y salir de Personalizar" : "";
    Pic_No.ToolTipText = con ? "Rechazar los cambios y salir de Personalizar" : "";
    Pic_SalirPicBotones.ToolTipText = con ? "Salir de Personalizar Botones" : "";
}

void FormAbrirFic::RellenaTextosSelector() {
    for (auto &fila : TextosSelector) {
        fila.fill(std::string(12, ' '));
    }
    const char *textos[4][2] = {
        {"", ""}, {"Visible", "Oculto"}, {"Activado", "Desactivado"}, {"Activada", "Desactivada"}};
    for (int t = 1; t <= 3; ++t) {
        TextosSelector[t][1] = CadenaFija(textos[t][0], 12);
        TextosSelector[t][2] = CadenaFija(textos[t][1], 12);
    }
}
