// AbrirFic: the controls laid out as the form is created.
#include "dialog/FormAbrirFic.h"

#include <filesystem>

#include "core/Controles.h"
#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "dialog/ServiciosDialogo.h"
#include "services/Ayuda.h"

namespace {

constexpr Color GRIS = 0xC0C0C0;
constexpr Color AMARILLO = 0x00FFFF;
constexpr Color AZUL = 0xFF0000;

// The places of the six shape or colour boxes in their panel.
constexpr int32_t CAJA_X[6] = {13, 58, 103, 13, 58, 103};
constexpr int32_t CAJA_Y[6] = {30, 30, 30, 75, 75, 75};

// The frames of the button placement page.
constexpr int32_t MARCO_X[12] = {0, 32, 32, 33, 32, 235, 235, 235, 235, 438, 438, 438};
constexpr int32_t MARCO_Y[12] = {0, 24, 138, 252, 366, 24, 138, 252, 366, 24, 138, 252};

CuadroImagen Pic(const std::string &nombre, const std::string &padre, int32_t l, int32_t t,
                 int32_t w, int32_t h, Color fondo = GRIS, bool borde = true) {
    CuadroImagen s(nombre, padre, l, t, w, h, fondo, borde);
    s.Letra.Negrita = true;
    s.WhatsThisHelpID = TemasAyuda::Personalizar;
    s.HelpContextID = TemasAyuda::ControlesDialogo;
    return s;
}

// The name of element i of a control array.
std::string Elemento(const char *nombre, int i) {
    std::string s(nombre);
    s += '(';
    s += std::to_string(i);
    s += ')';
    return s;
}

void Coloca(ControlConTamano &c, const std::string &nombre, const std::string &padre, int32_t l,
            int32_t t, int32_t w, int32_t h, int16_t tema) {
    c.Nombre = nombre;
    c.Padre = padre;
    c.Move(l, t);
    c.Width = w;
    c.Height = h;
    c.WhatsThisHelpID = tema;
    c.HelpContextID = TemasAyuda::ControlesDialogo;
}

void Boton(BotonDialogo &b, const std::string &caption, double puntos, bool negrita) {
    b.Caption = caption;
    b.Letra.Tamano = puntos;
    b.Letra.Negrita = negrita;
}

void Temas(EstadoControl &s, int16_t queEs, int16_t f1 = TemasAyuda::ControlesDialogo) {
    s.WhatsThisHelpID = queEs;
    s.HelpContextID = f1;
}

} // namespace

FormAbrirFic::FormAbrirFic() {
    ColocaControles();
    ColocaPaginaBotones();
    if (const auto carga = Plataforma().Dialogo.CargaTira; carga != nullptr) {
        carga(Pic_BmpVario);
    }
    // The lists start on the process's current folder, as the platform's
    // lists do; the opening then moves them.
    std::error_code ec;
    const std::string aqui = std::filesystem::current_path(ec).string();
    Drive1.Inicia(UnidadDeCarpeta(aqui));
    Dir1.PonPath(aqui);
    File1.PonPath(aqui);
    Drive1.Change = [this] { Drive1_Change(); };
    Dir1.Change = [this] { Dir1_Change(); };
    File1.Click = [this] { File1_Click(); };
    File1.DblClick = [this] { File1_DblClick(); };
    Lis_NroPiezas.Click = [this] { Lis_NroPiezas_Click(); };
}

void FormAbrirFic::ColocaControles() {
    Formulario = Pic("AbrirFic", "", 0, 0, 640, 480, GRIS, false);
    Temas(Formulario, TemasAyuda::Personalizar, TemasAyuda::Personalizar);

    Pic_ImagenPuzz = Pic("Pic_ImagenPuzz", "", 5, 6, 260, 468);
    Temas(Pic_ImagenPuzz, TemasAyuda::ImagenPuzzle, TemasAyuda::ImagenPuzzle);
    Coloca(Drive1, "Drive1", "Pic_ImagenPuzz", 8, 27, 240, 21, TemasAyuda::ImagenPuzzle);
    Coloca(Dir1, "Dir1", "Pic_ImagenPuzz", 8, 52, 118, 111, TemasAyuda::ImagenPuzzle);
    Coloca(File1, "File1", "Pic_ImagenPuzz", 130, 52, 118, 110, TemasAyuda::ImagenPuzzle);
    File1.Pattern = "*.bmp;*.rle;*.wmf;*.emf;*.jpg";
    Coloca(Bot_Portapapeles, "Bot_Portapapeles", "Pic_ImagenPuzz", 8, 178, 240, 22,
           TemasAyuda::Portapapeles);
    Boton(Bot_Portapapeles, "Cargar imagen del Portapapeles", 9.75, false);
    Pic_Modelo = Pic("Pic_Modelo", "Pic_ImagenPuzz", 8, 209, 240, 180, COLOR_BLANCO);
    Temas(Pic_Modelo, TemasAyuda::ImagenPuzzle);
    Pic_Zoom = Pic("Pic_Zoom", "Pic_ImagenPuzz", 8, 395, 152, 64);
    Temas(Pic_Zoom, TemasAyuda::Zoom);
    Pic_PorcZoom = Pic("Pic_PorcZoom", "Pic_Zoom", 68, 28, 38, 23);
    Pic_PorcZoom.ForeColor = AZUL;
    Temas(Pic_PorcZoom, TemasAyuda::Zoom);
    Pic_DatosBmp = Pic("Pic_DatosBmp", "Pic_ImagenPuzz", 163, 395, 85, 64, 0x80FFFF);
    Pic_DatosBmp.ForeColor = AZUL;
    Temas(Pic_DatosBmp, TemasAyuda::Zoom);

    Pic_TiposPuz = Pic("Pic_TiposPuz", "", 282, 6, 152, 124);
    Temas(Pic_TiposPuz, TemasAyuda::FormaPiezas);
    Pic_Colorfon = Pic("Pic_Colorfon", "", 282, 145, 152, 124);
    Temas(Pic_Colorfon, TemasAyuda::ColorFondo);
    for (int i = 0; i < 6; ++i) {
        Pic_TipPuz[i] =
            Pic(Elemento("Pic_TipPuz", i), "Pic_TiposPuz", CAJA_X[i], CAJA_Y[i], 32, 32, AMARILLO);
        Temas(Pic_TipPuz[i], TemasAyuda::FormaPiezas);
        Pic_ColFon[i] = Pic(Elemento("Pic_ColFon", i), "Pic_Colorfon", CAJA_X[i], CAJA_Y[i], 32, 32,
                            static_cast<Color>(PuzzGbl::ColoresFondo[i]));
        Temas(Pic_ColFon[i], TemasAyuda::ColorFondo);
    }
    Coloca(Rec_MarcaTip, "Rec_MarcaTip", "Pic_TiposPuz", 0, 0, 37, 36, TemasAyuda::FormaPiezas);
    Coloca(Rec_MarcaCol, "Rec_MarcaCol", "Pic_Colorfon", 0, 0, 37, 36, TemasAyuda::ColorFondo);

    Pic_FactorPegado = Pic("Pic_FactorPegado", "", 282, 284, 152, 190);
    Temas(Pic_FactorPegado, TemasAyuda::FactorAtraccion);
    Pic_PorcFactorPegado = Pic("Pic_PorcFactorPegado", "Pic_FactorPegado", 68, 28, 38, 23);
    Pic_PorcFactorPegado.ForeColor = AZUL;
    Temas(Pic_PorcFactorPegado, TemasAyuda::FactorAtraccion);
    Pic_Prueba = Pic("Pic_Prueba", "Pic_FactorPegado", 6, 60, 137, 121);
    Pic_Prueba.RellenaFiguras = true;
    Pic_Prueba.FillColor = 0x0080FF;
    Temas(Pic_Prueba, TemasAyuda::FactorAtraccion, TemasAyuda::PanelPrueba);
    Coloca(Bot_Prueba, "Bot_Prueba", "Pic_Prueba", 22, 88, 90, 23, TemasAyuda::FactorAtraccion);
    Boton(Bot_Prueba, "Prueba", 9.75, true);
    Pic_PruebaPeq = Pic("Pic_PruebaPeq", "Pic_Prueba", 97, 4, 32, 27, AMARILLO);
    Temas(Pic_PruebaPeq, TemasAyuda::FactorAtraccion);

    Coloca(Bot_Botones, "Bot_Botones", "", 449, 7, 148, 23, TemasAyuda::LugarBotones);
    Boton(Bot_Botones, "Personalizar botones >>", 8.25, false);
    Coloca(Bot_QueEs, "Bot_QueEs", "", 603, 7, 23, 23, TemasAyuda::Personalizar);
    Boton(Bot_QueEs, "?", 12, true);
    Pic_NroPiezas = Pic("Pic_NroPiezas", "", 449, 37, 177, 155);
    Temas(Pic_NroPiezas, TemasAyuda::NumeroPiezas);
    Coloca(Lis_NroPiezas, "Lis_NroPiezas", "Pic_NroPiezas", 9, 25, 156, 121,
           TemasAyuda::NumeroPiezas);

    Pic_Cronometro = Pic("Pic_Cronometro", "", 449, 196, 178, 42, GRIS, false);
    Pic_Sonido = Pic("Pic_Sonido", "", 449, 241, 178, 42, GRIS, false);
    Pic_Pistas = Pic("Pic_Pistas", "", 449, 286, 178, 42, GRIS, false);
    Temas(Pic_Cronometro, TemasAyuda::Cronometro);
    Temas(Pic_Sonido, TemasAyuda::Sonido);
    Temas(Pic_Pistas, TemasAyuda::Pistas);
    for (CuadroImagen *s : {&Pic_Cronometro, &Pic_Sonido, &Pic_Pistas}) {
        s->Letra.Negrita = false;
    }
    Pic_Velocidad = Pic("Pic_Velocidad", "", 462, 338, 152, 64);
    Temas(Pic_Velocidad, TemasAyuda::Velocidad);
    Pic_PorcVelocidad = Pic("Pic_PorcVelocidad", "Pic_Velocidad", 68, 28, 38, 23);
    Pic_PorcVelocidad.ForeColor = AZUL;
    Temas(Pic_PorcVelocidad, TemasAyuda::Velocidad);
    Pic_No = Pic("Pic_No", "", 462, 414, 56, 56);
    Pic_Si = Pic("Pic_Si", "", 558, 414, 56, 56);
    Temas(Pic_No, TemasAyuda::Personalizar, TemasAyuda::Personalizar);
    Temas(Pic_Si, TemasAyuda::Personalizar, TemasAyuda::Personalizar);

    Pic_Comprobar = Pic("Pic_Comprobar", "", 0, 0, 0, 0, COLOR_BLANCO, false);
    Pic_Comprobar.TomaTamanoDeImagen = true;
    Pic_Comprobar.Visible = false;
    Pic_OriginMem = Pic("Pic_OriginMem", "", 0, 0, 0, 0, COLOR_BLANCO, false);
    Pic_OriginMem.TomaTamanoDeImagen = true;
    Pic_OriginMem.Visible = false;
    Pic_BmpVario = Pic("Pic_BmpVario", "", 0, 0, 318, 24, GRIS, false);
    Pic_BmpVario.Visible = false;
}

void FormAbrirFic::ColocaPaginaBotones() {
    Pic_LugarBotones = Pic("Pic_LugarBotones", "", 0, 0, 640, 480, GRIS, false);
    Pic_LugarBotones.Visible = false;
    Temas(Pic_LugarBotones, TemasAyuda::LugarBotones, TemasAyuda::LugarBotones);
    for (int i = 1; i <= 11; ++i) {
        const std::string marco = Elemento("Picture2", i);
        Picture2[i] = Pic(marco, "Pic_LugarBotones", MARCO_X[i], MARCO_Y[i], 171, 90);
        Temas(Picture2[i], TemasAyuda::LugarBotones, TemasAyuda::LugarBotones);
        Coloca(Lab_Botones[i], Elemento("Lab_Botones", i), marco, 4, 4, 159, 18,
               TemasAyuda::LugarBotones);
        Lab_Botones[i].Letra = Fuente{"Arial", 9, true};
        Lab_Botones[i].ForeColor = AZUL;
        Lab_Botones[i].BackColor = GRIS;
        Pic_BotLugBot[i] = Pic(Elemento("Pic_BotLugBot", i), marco, 4, 26, 56, 56);
        Temas(Pic_BotLugBot[i], TemasAyuda::LugarBotones, TemasAyuda::LugarBotones);
        Coloca(Opt_Siempre[i], Elemento("Opt_Siempre", i), marco, 68, 34, 92, 18,
               TemasAyuda::LugarBotones);
        Opt_Siempre[i].Caption = "Siempre visible";
        Coloca(Opt_Derecho[i], Elemento("Opt_Derecho", i), marco, 68, 58, 93, 18,
               TemasAyuda::LugarBotones);
        Opt_Derecho[i].Caption = "Botón derecho";
        for (EstadoControl *c : std::initializer_list<EstadoControl *>{
                 &Lab_Botones[i], &Opt_Siempre[i], &Opt_Derecho[i]}) {
            c->HelpContextID = TemasAyuda::LugarBotones;
        }
    }
    Pic_SalirPicBotones = Pic("Pic_SalirPicBotones", "Pic_LugarBotones", 553, 400, 56, 56);
    Temas(Pic_SalirPicBotones, TemasAyuda::LugarBotones, TemasAyuda::LugarBotones);
}

void FormAbrirFic::Refresca() {
    if (AlRefrescar) {
        AlRefrescar();
    }
}
