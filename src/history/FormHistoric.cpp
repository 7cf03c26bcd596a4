// Historic: its controls, its loading, the first page and a record's page.
#include "history/FormHistoric.h"

#include "core/Controles.h"
#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "history/Formatos.h"
#include "history/ServiciosHistorico.h"
#include "panels/TiempoCronometro.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

constexpr int32_t ANCHO_PAGINA = 275;
constexpr int32_t ANCHO_PARCHE = 124;
constexpr int32_t ALTO_PARCHE = 298;
// The smallest letter a value is set in before it is cut: 9 pixels.
constexpr double TAMANO_MINIMO = 6.75;
// Where the values of a page end: the right edge of its white column.
constexpr int32_t FIN_PAGINA_IZQUIERDA = 250;
constexpr int32_t FIN_PAGINA_DERECHA = 510;

// The text without its last character (UTF-8).
void QuitaUltimo(std::string &t) {
    while (!t.empty() && (static_cast<unsigned char>(t.back()) & 0xC0) == 0x80) {
        t.pop_back();
    }
    if (!t.empty()) {
        t.pop_back();
    }
}

std::string SinBlancosFinales(std::string t) {
    while (!t.empty() && (t.back() == ' ' || t.back() == '\0')) {
        t.pop_back();
    }
    return t;
}

// The name as the player sees it: neither the padding of the fixed string
// nor the NULs of a name never typed.
std::string NombreVisible(const std::string &nombre) {
    std::string t;
    for (char c : nombre) {
        if (c != '\0') {
            t += c;
        }
    }
    return SinBlancosFinales(t);
}

std::string SiNo(int16_t bandera) {
    return bandera != 0 ? "Si" : "No";
}

std::string Clase(int16_t tipo) {
    return tipo > 1 ? "Dobles" : "Simples";
}

std::string Tamano(int16_t ancho, int16_t alto) {
    return FormatoEntero(ancho) + " x " + FormatoEntero(alto);
}

} // namespace

FormHistoric::FormHistoric() : Formulario(ANCHO, ALTO, COLOR_TAPA) {
    Formulario.Letra = Fuente{"MS Sans Serif", 8.25, true};
    Formulario.ForeColor = COLOR_NEGRO;
    Superficie pagina(ANCHO_PAGINA, ALTO, COLOR_BLANCO);
    Superficie etiquetas(ANCHO_PARCHE, ALTO_PARCHE, COLOR_BLANCO);
    if (const auto carga = Plataforma().Historico.CargaImagenes; carga != nullptr) {
        carga(pagina, etiquetas);
    }
    Formulario.AsignaImagen(pagina);
    for (CuadroImagen &tapa : Pic_Tapa) {
        tapa = CuadroImagen(26, 1, COLOR_TAPA);
    }
    Pic_Parche1 = CuadroImagen(ANCHO_PARCHE, ALTO_PARCHE, COLOR_BLANCO);
    Pic_Parche1.AsignaImagen(etiquetas);
    Pic_Parche1.Visible = false;
    Pic_Parche2 = CuadroImagen(ANCHO_PARCHE, ALTO_PARCHE, COLOR_BLANCO);
    Pic_Parche2.Visible = false;
}

// The narrow page becomes a double page. Each copy reads what the ones
// before it left: the right margin goes to the right edge, the plain column
// fills the right page, the labels move to the right page, and the plain
// column at x 56 paints the left page over the rest.
void FormHistoric::Form_Load() {
    Left = (AnchoPantalla - ANCHO) / 2;
    Top = (AltoPantalla - ALTO) / 2;
    Superficie &f = Formulario;
    BitBlt(f, 487, 0, 54, ALTO, f, 221, 0, SRCCOPY);
    for (int32_t x = 414; x <= 486; ++x) {
        BitBlt(f, x, 0, 1, ALTO, f, 220, 0, SRCCOPY);
    }
    BitBlt(f, 252, 0, 163, ALTO, f, 57, 0, SRCCOPY);
    for (int32_t x = 56; x <= 251; ++x) {
        BitBlt(f, x, 0, 1, ALTO, f, 56, 0, SRCCOPY);
    }
    MuestraPuzzleActual();
    ListaNombreLlena = ListaImagenLlena = ListaTiempoLlena = FALSO;
    Pic_Parche1.Move(291, 14, ANCHO_PARCHE, ALTO_PARCHE);
    Pic_Parche2.AsignaImagen(Pic_Parche1);
    Pic_Parche2.Move(40, 14, ANCHO_PARCHE, ALTO_PARCHE);
    teselari.MousePointer = PUNTERO_NORMAL;
}

// The two patches cover the tabs of the sections still ahead on the left
// margin and those already passed on the right one.
void FormHistoric::PonTapas(int16_t seccion) {
    static const struct {
        int32_t arriba1, alto1, arriba2, alto2;
    } tapas[5] = {{28, 287, 27, 1},
                  {100, 215, 28, 72},
                  {172, 143, 28, 144},
                  {244, 71, 28, 216},
                  {315, 1, 28, 288}};
    const auto &t = tapas[seccion];
    Pic_Tapa[1].Move(3, t.arriba1, 26, t.alto1);
    Pic_Tapa[2].Move(512, t.arriba2, 26, t.alto2);
}

void FormHistoric::MuestraParches(bool visibles) {
    Pic_Parche1.Visible = visibles;
    Pic_Parche2.Visible = visibles;
}

// The white columns where the values of both pages stand.
void FormHistoric::PaginasEnBlanco() {
    Formulario.CajaLlena(160, 16, 249, 309, COLOR_BLANCO);
    Formulario.CajaLlena(415, 16, 509, 309, COLOR_BLANCO);
}

// A value stays inside its white column: one too wide is set a little
// smaller, and cut with an ellipsis only when the smallest letter is still
// too wide (a long picture name).
void FormHistoric::Escribe(int32_t x, int32_t y, const std::string &texto, int32_t derecha) {
    Superficie &f = Formulario;
    const Fuente letra = f.Letra;
    const double ancho = derecha - x;
    std::string t = SinBlancosFinales(texto);
    while (f.TextWidth(t) > ancho && f.Letra.Tamano > TAMANO_MINIMO) {
        f.Letra.Tamano -= 0.75;
    }
    if (f.TextWidth(t) > ancho) {
        while (!t.empty() && f.TextWidth(t + "…") > ancho) {
            QuitaUltimo(t);
        }
        t = SinBlancosFinales(t) + "…";
    }
    f.CurrentX = x;
    f.CurrentY = y;
    f.Print(t);
    f.Letra = letra;
}

void FormHistoric::MuestraPuzzleActual() {
    MarcaLibro = 0;
    PonTapas(0);
    PaginasEnBlanco();
    MuestraParches(false);
    const struct {
        int32_t y;
        std::string valor;
    } lineas[] = {
        {42, NombreImagen},
        {63, Tamano(AnchoPuzzle, AltoPuzzle)},
        {84, FormatoEntero(PiezasPorLado)},
        {106, Clase(TipoPieza)},
        {127, NombreTipoPieza(TipoPieza)},
        {148, FormatoEntero(NroPiezas)},
        {169, FormatoEntero(AnchoPieza) + " pixeles"},
        {190, FormatoEntero(AltoPieza) + " pixeles"},
        {212, FormatoTresDecimales(Dificultad)},
        {233, TiempoCronometro(SegundosCronometro)},
        {254, SiNo(PartidaValida)},
        {275, SiNo(PuzzleCompleto)},
    };
    for (const auto &l : lineas) {
        Escribe(420, l.y, l.valor, FIN_PAGINA_DERECHA);
    }
    Tex_Nombre.Move(419, 293);
    Tex_Nombre.Visible = true;
    Tex_Nombre.Text = NombreVisible(NombreJugador);
}

void FormHistoric::DibujaRegistro() {
    if (RegistroPagina < 1 || RegistroPagina > NroRegistrosHistorico ||
        static_cast<size_t>(RegistroPagina) >= Historico.size()) {
        return;
    }
    const RegistroHistorico &r = Historico[static_cast<size_t>(RegistroPagina)];
    const struct {
        int32_t y;
        std::string valor;
    } lineas[] = {
        {17, r.Fecha},
        {37, r.Hora},
        {57, r.Imagen},
        {77, Tamano(r.AnchoPuzzle, r.AltoPuzzle)},
        {97, FormatoEntero(r.PiezasPorLado)},
        {118, Clase(r.TipoPieza)},
        {138, NombreTipoPieza(r.TipoPieza)},
        {158, FormatoEntero(r.NroPiezas)},
        {178, FormatoEntero(r.AnchoPieza) + " pixeles"},
        {198, FormatoEntero(r.AltoPieza) + " pixeles"},
        {219, FormatoTresDecimales(r.Dificultad)},
        {239, TiempoCronometro(r.Segundos)},
        {259, FormatoEntero(r.FactorPegado) + " %"},
        {279, r.Nombre},
        {299, FormatoEntero(ContadorPagina)},
    };
    const int32_t derecha = MedioLibro == 0 ? FIN_PAGINA_IZQUIERDA : FIN_PAGINA_DERECHA;
    for (const auto &l : lineas) {
        Escribe(MedioLibro + 170, l.y, l.valor, derecha);
    }
}
