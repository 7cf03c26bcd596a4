#include "services/Ayuda.h"

#include <array>

#include "core/Plataforma.h"

namespace {

struct Tema {
    int16_t numero;
    const char *destino;
};

// The one table of the book's topics: number, page and anchor. The anchors
// are named "t" and the number, on the page given here.
constexpr std::array<Tema, 21> temas{{
    {TemasAyuda::Contenido, "indice.html"},
    {TemasAyuda::Tablero, "juego.html#t1120"},
    {TemasAyuda::BotonesSiempre, "paneles.html#t1210"},
    {TemasAyuda::Personalizar, "personalizar.html#t1230"},
    {TemasAyuda::ImagenPuzzle, "personalizar.html#t1231"},
    {TemasAyuda::Portapapeles, "personalizar.html#t1232"},
    {TemasAyuda::Zoom, "personalizar.html#t1233"},
    {TemasAyuda::NumeroPiezas, "personalizar.html#t1234"},
    {TemasAyuda::FormaPiezas, "personalizar.html#t1235"},
    {TemasAyuda::ColorFondo, "personalizar.html#t1236"},
    {TemasAyuda::FactorAtraccion, "personalizar.html#t1237"},
    {TemasAyuda::Velocidad, "personalizar.html#t1238"},
    {TemasAyuda::Cronometro, "personalizar.html#t1239"},
    {TemasAyuda::Sonido, "personalizar.html#t1240"},
    {TemasAyuda::Pistas, "personalizar.html#t1241"},
    {TemasAyuda::LugarBotones, "personalizar.html#t1242"},
    {TemasAyuda::Historico, "historico.html#t1250"},
    {TemasAyuda::PanelCronometro, "cronometro.html#t1280"},
    {TemasAyuda::PiezasColocadas, "paneles.html#t1290"},
    {TemasAyuda::ControlesDialogo, "personalizar.html#t1602"},
    {TemasAyuda::PanelPrueba, "personalizar.html#t1603"},
}};

const Tema *BuscaTema(int16_t numero) {
    for (const Tema &t : temas) {
        if (t.numero == numero) {
            return &t;
        }
    }
    return nullptr;
}

} // namespace

void MuestraAyuda(int16_t tema) {
    if (const auto mostrador = Plataforma().MuestraAyuda; mostrador != nullptr) {
        mostrador(tema);
    }
}

std::string DestinoAyuda(int16_t tema) {
    const Tema *t = BuscaTema(tema);
    return t != nullptr ? t->destino : temas[0].destino;
}
