// AbrirFic's three percentage steppers: arrow buttons drawn on a panel,
// their hit test, the auto-repeat that lets events run on every turn, and
// the zoom's limit check and rebuild.
#include <cmath>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/TextosDialogo.h"
#include "raster/Raster.h"
#include "services/Esperas.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

constexpr Color GRIS = 0xC0C0C0;
constexpr int32_t ANCHO_FLECHA = 24, ALTO_FLECHA = 14;
constexpr int32_t SUBE_ALZADA = 158, BAJA_ALZADA = 183, SUBE_PULSADA = 208, BAJA_PULSADA = 233;

bool EnFlecha(int16_t x0, int16_t y0, float x, float y) {
    return x >= x0 && x <= x0 + ANCHO_FLECHA && y >= y0 && y <= y0 + ALTO_FLECHA;
}

void PintaFlecha(Superficie &panel, const Superficie &tira, int16_t x, int16_t y, int32_t fuente) {
    BitBlt(panel, x, y, ANCHO_FLECHA, ALTO_FLECHA, tira, fuente, 1, SRCCOPY);
}

// Values always land on a multiple of 5; one below 0 comes to 0.
int16_t Redondo5(int32_t v) {
    v -= v % 5;
    return static_cast<int16_t>(v < 0 ? 0 : v);
}

} // namespace

void FormAbrirFic::PreparaPulsador(CuadroImagen &panel, const std::string &titulo, int16_t x,
                                   int16_t y, void (FormAbrirFic::*imprime)()) {
    ImprimeTexto3D(panel, x, y, titulo);
    panel.CurrentX = 8;
    panel.CurrentY = 34;
    panel.Print("Porcentaje:");
    (this->*imprime)();
    PintaFlecha(panel, Pic_BmpVario, 114, 25, SUBE_ALZADA);
    PintaFlecha(panel, Pic_BmpVario, 114, 40, BAJA_ALZADA);
}

void FormAbrirFic::ImprimePorcentaje(Superficie &lectura, int16_t valor) {
    lectura.Cls();
    const std::string texto = std::to_string(valor) + "%";
    const int32_t w = Redondea(lectura.TextWidth(texto));
    lectura.CurrentX = (36 - w) / 2.0;
    lectura.CurrentY = 3;
    lectura.Print(texto);
    Refresca();
}

void FormAbrirFic::ImprimeFactorPegado() {
    ImprimePorcentaje(Pic_PorcFactorPegado, FactorPegado);
}

void FormAbrirFic::ImprimeVelocidad() {
    ImprimePorcentaje(Pic_PorcVelocidad, Velocidad);
}

void FormAbrirFic::ImprimeZoom() {
    ImprimePorcentaje(Pic_PorcZoom, Zoom);
}

// The zoomed picture must stay within 320..1024 x 240..768: a step that
// leaves the limits is taken back, with a message, and the repeat ends.
bool FormAbrirFic::LimiteZoom(bool subiendo) {
    const auto z = [](int32_t lado) {
        return static_cast<int64_t>(std::floor(static_cast<double>(Zoom) * lado / 100.0));
    };
    const int64_t w = z(AnchoComprobar), h = z(AltoComprobar);
    const bool falla = subiendo ? (w > 1024 || h > 768) : (w < 320 || h < 240);
    if (!falla) {
        return true;
    }
    ReproduceSonido(Clips::Rechazo);
    MuestraMensaje(MensajeLimiteZoom());
    Zoom = static_cast<int16_t>(subiendo ? Zoom - 5 : Zoom + 5);
    ImprimeZoom();
    return false;
}

// The repeat ends when MouseMove or MouseUp, run while events are let
// through, clears the flag. With no event loop to let through (no platform)
// nobody could clear it, so one turn is all there is.
void FormAbrirFic::PulsaPaso(CuadroImagen &panel, PasosPorcentaje &p, int16_t &valor, int16_t tope,
                             int16_t suelo, void (FormAbrirFic::*imprime)(), bool conLimite,
                             float X, float Y) {
    const bool sube = EnFlecha(p.BotonSubeX, p.BotonSubeY, X, Y) && panel.Point(X, Y) != GRIS;
    const bool baja =
        !sube && EnFlecha(p.BotonBajaX, p.BotonBajaY, X, Y) && panel.Point(X, Y) != GRIS;
    if (!sube && !baja) {
        return;
    }
    int16_t &bandera = sube ? p.Subiendo : p.Bajando;
    const int16_t fx = sube ? p.BotonSubeX : p.BotonBajaX;
    const int16_t fy = sube ? p.BotonSubeY : p.BotonBajaY;
    bandera = VERDADERO;
    while (bandera != FALSO) {
        if (sube ? valor < tope : valor > suelo) {
            PintaFlecha(panel, Pic_BmpVario, fx, fy, sube ? SUBE_PULSADA : BAJA_PULSADA);
            Refresca();
            ReproduceSonido(Clips::Paso);
            EsperaTiempo(22);
            valor = Redondo5(valor + (sube ? 5 : -5));
            (this->*imprime)();
            PintaFlecha(panel, Pic_BmpVario, fx, fy, sube ? SUBE_ALZADA : BAJA_ALZADA);
            Refresca();
            EsperaTiempo(22);
            if (conLimite && !LimiteZoom(sube)) {
                bandera = FALSO;
            }
        }
        if (Plataforma().Eventos == nullptr) {
            bandera = FALSO;
        }
        PermiteEventos();
    }
}

void FormAbrirFic::MueveSobrePaso(CuadroImagen &panel, PasosPorcentaje &p, float X, float Y) {
    if (p.Subiendo != FALSO && !EnFlecha(p.BotonSubeX, p.BotonSubeY, X, Y)) {
        p.Subiendo = FALSO;
    }
    if (p.Bajando != FALSO && !EnFlecha(p.BotonBajaX, p.BotonBajaY, X, Y)) {
        p.Bajando = FALSO;
    }
    if (X >= 114 && X <= 138 && Y >= 25 && Y <= 54) {
        PonManoSiNormal(panel);
    } else if (panel.MousePointer != PUNTERO_NORMAL) {
        panel.MousePointer = PUNTERO_NORMAL;
    }
}

void FormAbrirFic::SueltaPaso(CuadroImagen &panel, PasosPorcentaje &p) {
    if (p.Subiendo != FALSO) {
        PintaFlecha(panel, Pic_BmpVario, p.BotonSubeX, p.BotonSubeY, SUBE_ALZADA);
        Refresca();
        p.Subiendo = FALSO;
    }
    if (p.Bajando != FALSO) {
        PintaFlecha(panel, Pic_BmpVario, p.BotonBajaX, p.BotonBajaY, BAJA_ALZADA);
        Refresca();
        p.Bajando = FALSO;
    }
}

void FormAbrirFic::Pic_FactorPegado_MouseDown(int16_t, int16_t, float X, float Y) {
    PulsaPaso(Pic_FactorPegado, PasoFactorPegado, FactorPegado, 100, 0,
              &FormAbrirFic::ImprimeFactorPegado, false, X, Y);
}

void FormAbrirFic::Pic_Velocidad_MouseDown(int16_t, int16_t, float X, float Y) {
    PulsaPaso(Pic_Velocidad, PasoVelocidad, Velocidad, 100, 0, &FormAbrirFic::ImprimeVelocidad,
              false, X, Y);
}

// With no file evaluated in this opening (an empty folder) Pic_Comprobar
// holds nothing to rebuild the picture from: the press is ignored whole, so
// Zoom keeps agreeing with the Pic_Origin that stands and the grid with it.
void FormAbrirFic::Pic_Zoom_MouseDown(int16_t, int16_t, float X, float Y) {
    if (!FicheroEvaluado) {
        return;
    }
    PulsaPaso(Pic_Zoom, PasoZoom, Zoom, 995, 5, &FormAbrirFic::ImprimeZoom, true, X, Y);
    CargaEnPicOrigin();
    CalculaPiezas();
    CargaLisNroPiezas();
}

void FormAbrirFic::Pic_FactorPegado_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobrePaso(Pic_FactorPegado, PasoFactorPegado, X, Y);
}

void FormAbrirFic::Pic_Velocidad_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobrePaso(Pic_Velocidad, PasoVelocidad, X, Y);
}

void FormAbrirFic::Pic_Zoom_MouseMove(int16_t, int16_t, float X, float Y) {
    MueveSobrePaso(Pic_Zoom, PasoZoom, X, Y);
}

void FormAbrirFic::Pic_FactorPegado_MouseUp(int16_t, int16_t, float, float) {
    SueltaPaso(Pic_FactorPegado, PasoFactorPegado);
}

void FormAbrirFic::Pic_Velocidad_MouseUp(int16_t, int16_t, float, float) {
    SueltaPaso(Pic_Velocidad, PasoVelocidad);
}

void FormAbrirFic::Pic_Zoom_MouseUp(int16_t, int16_t, float, float) {
    SueltaPaso(Pic_Zoom, PasoZoom);
}
