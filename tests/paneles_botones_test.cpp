// The button panels: layout by screen height, the pop-up kept on screen,
// the pressed look, tooltips and pointers.
#include "paneles_comun.h"
#include "panels/BotonesRaton.h"
#include "panels/Paneles.h"
#include "plataforma_prueba.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

class Paneles : public Motor {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        PintaTiraPrueba(teselari.Pic_BmpBoton);
    }
};

// The buttons in `en` stand in the order of their numbers, `primera` of them
// in the first column (at 3), the rest in the second (at 61), 58 apart.
void EsperaRejilla(const std::array<CuadroImagen, 12> &botones, const std::array<bool, 12> &en,
                   int primera) {
    int k = 0;
    for (int i = 1; i <= 11; ++i) {
        EXPECT_EQ(botones[i].Visible, en[i]) << i;
        if (en[i]) {
            const bool segunda = k >= primera;
            EXPECT_EQ(botones[i].Left, segunda ? 61 : 3) << i;
            EXPECT_EQ(botones[i].Top, 3 + 58 * (segunda ? k - primera : k)) << i;
            ++k;
        }
    }
}

struct CasoSiempre {
    const char *nombre;
    int16_t alto_pantalla;
    std::vector<int> botones; // allocated to the panel
    int ancho, alto, bsinfo;
    int primera; // buttons in the first column
};

const CasoSiempre casos_siempre[] = {
    // 11 x 58 + 6 + 23 = 667: one column from 667 + the bar's 16 on,
    // below that two columns of 6 and 5.
    {"Once683", 683, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 62, 667, 56, 11},
    {"Once682", 682, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 120, 377, 114, 6},
    {"Diez600", 600, {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}, 120, 319, 114, 5},
    {"Tres600", 600, {2, 5, 11}, 62, 203, 56, 3},
    // No button: only the count, 6 + 23 high.
    {"Ninguno", 768, {}, 62, 29, 56, 0},
};

class PanelSiempre : public Paneles, public ::testing::WithParamInterface<CasoSiempre> {};

TEST_P(PanelSiempre, SeDisponeSegunElAltoDePantalla) {
    const CasoSiempre &c = GetParam();
    AltoPantalla = c.alto_pantalla; // 1024 wide
    BotonEnSiempre.fill(false);
    for (int b : c.botones) {
        BotonEnSiempre[b] = true;
    }
    DibujaBotonesSiempre();
    const FormTeselari &f = teselari;
    EXPECT_EQ(f.Pic_BotonesSiempre.Ancho(), c.ancho);
    EXPECT_EQ(f.Pic_BotonesSiempre.Alto(), c.alto);
    // Against the right scroll bar, at the top of the screen.
    EXPECT_EQ(f.Pic_BotonesSiempre.Left, 1024 - 16 - c.ancho);
    EXPECT_EQ(f.Pic_BotonesSiempre.Top, 0);
    EXPECT_EQ(f.Pic_BSInfo.Ancho(), c.bsinfo);
    EXPECT_EQ(f.Pic_BSInfo.Alto(), 23);
    EXPECT_EQ(f.Pic_BSInfo.Top, c.alto - 26);
    EsperaRejilla(f.Pic_BotonSiempre, BotonEnSiempre, c.primera);
    // The frame: grey bottom right, white top left (the window's test
    // looks at it on the screen).
    EXPECT_EQ(f.Pic_BotonesSiempre.Point(c.ancho - 1, c.alto - 1), 0x808080u);
    EXPECT_EQ(f.Pic_BotonesSiempre.Point(0, 0), COLOR_BLANCO);
}

INSTANTIATE_TEST_SUITE_P(Disposicion, PanelSiempre, ::testing::ValuesIn(casos_siempre),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

// Rebuilt, the panel (at 946) keeps the chronometer (62 wide) left of it,
// writes the count at its foot and shows a running command's button down:
// its image starts at 5 instead of 3.
TEST_F(Paneles, ElPanelRehechoApartaElCronometroEscribeLaCuentaYMantieneLosPulsados) {
    RotuladorRegistro r;
    PonServicio(&ServiciosPlataforma::Texto, &r);
    NroPiezas = 64;
    BotonPulsado[7] = VERDADERO;
    const int casos[][2] = {{950, 884}, {885, 884}, {884, 884}, {100, 100}};
    for (const auto &[antes, despues] : casos) {
        teselari.Pic_Cronome.Left = antes;
        DibujaBotonesSiempre();
        EXPECT_EQ(teselari.Pic_Cronome.Left, despues) << antes;
        EXPECT_EQ(r.textos.back().texto, "0 / 64");
    }
    EXPECT_EQ(r.textos.size(), 4u);
    EXPECT_EQ(r.textos[0].color, 0xFF0000u);
    EXPECT_EQ(teselari.Pic_BotonSiempre[7].Point(4, 4), GRIS_PANEL);
    EXPECT_EQ(teselari.Pic_BotonSiempre[7].Point(5, 5), CuerpoPrueba(7));
    EXPECT_EQ(teselari.Pic_BotonSiempre[6].Point(3, 3), CuerpoPrueba(6));
}

struct CasoDerecho {
    const char *nombre;
    int16_t alto_pantalla;
    float x, y;
    int left, top, ancho, alto;
};

// Eleven buttons: 641 x 61 in one column on 768, 351 x 119 in two on 600.
// The visible board ends at 1008 across and at 752 (or 584) down.
const CasoDerecho casos_derecho[] = {
    {"ArribaIzquierda", 768, 0, 0, 0, 0, 61, 641},
    {"AbajoDerecha", 768, 1020, 760, 947, 111, 61, 641},
    {"JustoCabe", 768, 947, 111, 947, 111, 61, 641},
    {"UnoDeMas", 768, 948, 112, 947, 111, 61, 641},
    {"DosColumnasAbajoDerecha", 600, 990, 580, 889, 233, 119, 351},
};

class PanelDerecho : public Paneles, public ::testing::WithParamInterface<CasoDerecho> {};

TEST_P(PanelDerecho, SeAbreJuntoAlRatonSinSalirDeLaPantalla) {
    const CasoDerecho &c = GetParam();
    AltoPantalla = c.alto_pantalla; // 1024 wide
    BotonEnDerecho.fill(true);
    DibujaBotonesDerecho(c.x, c.y);
    const CuadroImagen &p = teselari.Pic_BotonesDerecho;
    EXPECT_TRUE(p.Visible);
    EXPECT_EQ(p.Left, c.left);
    EXPECT_EQ(p.Top, c.top);
    EXPECT_EQ(p.Ancho(), c.ancho);
    EXPECT_EQ(p.Alto(), c.alto);
    EsperaRejilla(teselari.Pic_BotonDerecho, BotonEnDerecho, c.ancho == 119 ? 6 : 11);
}

INSTANTIATE_TEST_SUITE_P(Esquinas, PanelDerecho, ::testing::ValuesIn(casos_derecho),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST_F(Paneles, ElPanelDerechoMuestraSoloLosBotonesAsignados) {
    const FormTeselari &f = teselari;
    BotonEnDerecho.fill(false);
    DibujaBotonesDerecho(300, 300);
    EXPECT_FALSE(f.Pic_BotonesDerecho.Visible);
    BotonEnDerecho[4] = BotonEnDerecho[9] = true;
    DibujaBotonesDerecho(100, 100);
    EXPECT_EQ(f.Pic_BotonesDerecho.Alto(), 2 * 58 + 3);
    EsperaRejilla(f.Pic_BotonDerecho, BotonEnDerecho, 2);
    EXPECT_EQ(f.Pic_BotonDerecho[9].Point(3, 3), CuerpoPrueba(9));
}

class AspectoBoton : public Paneles, public ::testing::WithParamInterface<int> {};

TEST_P(AspectoBoton, PulsadoPierdeLaSombraYSeDesplaza) {
    const int16_t i = static_cast<int16_t>(GetParam());
    CuadroImagen &c = teselari.Pic_BotonSiempre[i];
    const size_t semillas = SemillasSombra()[static_cast<size_t>(i)].size();
    const int sombra = static_cast<int>(9 * semillas);

    BotonPulsado[i] = FALSO;
    DibuBot(i, c);
    const Superficie arriba = c;
    EXPECT_EQ(referencia::Cuenta(c, SOMBRA_PRUEBA), sombra);
    EXPECT_EQ(c.Point(3, 3), CuerpoPrueba(i));
    EXPECT_EQ(c.Point(2, 2), GRIS_PANEL);

    // Down: no shadow left, the body whole, two pixels lower and righter.
    BotonPulsado[i] = VERDADERO;
    DibuBot(i, c);
    EXPECT_EQ(referencia::Cuenta(c, SOMBRA_PRUEBA), 0);
    EXPECT_EQ(referencia::Cuenta(c, CuerpoPrueba(i)), 48 * 48 - sombra);
    EXPECT_EQ(referencia::Cuenta(c, GRIS_PANEL), 56 * 56 - (48 * 48 - sombra));
    EXPECT_EQ(c.Point(5, 5), CuerpoPrueba(i));
    EXPECT_EQ(c.Point(4, 4), GRIS_PANEL);

    // Released, it is exactly the button it was.
    BotonPulsado[i] = FALSO;
    DibuBot(i, c);
    EXPECT_TRUE(MismosPixeles(c, arriba));
}

INSTANTIATE_TEST_SUITE_P(LosOnce, AspectoBoton, ::testing::Range(1, 12));

TEST_F(Paneles, LasPistasSonLosTextosSinBlancos) {
    const FormTeselari &f = teselari;
    for (const int pistas : {1, 2}) {
        Pistas = static_cast<int16_t>(pistas);
        ActualizaPistas();
        for (int i = 1; i <= 11; ++i) {
            const std::string &t = f.Pic_BotonSiempre[i].ToolTipText;
            EXPECT_EQ(t.empty(), pistas == 2) << i;
            EXPECT_TRUE(t.empty() || (t.front() != ' ' && t.back() != ' ')) << i;
            EXPECT_EQ(t, f.Pic_BotonDerecho[i].ToolTipText);
        }
    }
    Pistas = 1;
    ActualizaPistas();
    EXPECT_EQ(f.Pic_BotonSiempre[1].ToolTipText, "Ayuda de la aplicación");
}

TEST_F(Paneles, ElPunteroDiceSiElBotonPuedeActuar) {
    auto puntero = [](int i) { return teselari.Pic_BotonSiempre[i].MousePointer; };
    // At first every button shows no entry; the first move finds the hand.
    EXPECT_EQ(puntero(5), PUNTERO_PROHIBIDO);
    for (int16_t i = 1; i <= 11; ++i) {
        Pic_BotonSiempre_MouseMove(i, 0, 0, 10, 10);
        EXPECT_EQ(puntero(i), PUNTERO_PROPIO) << i;
        EXPECT_EQ(teselari.Pic_BotonSiempre[i].MouseIcon, "MANOINDICE");
    }
    // On a finished puzzle 5 to 9 turn to no entry, the others keep the hand.
    PuzzleCompleto = VERDADERO;
    for (int16_t i = 1; i <= 11; ++i) {
        Pic_BotonSiempre_MouseMove(i, 0, 0, 10, 10);
        Pic_BotonDerecho_MouseMove(i, 0, 0, 10, 10);
        const int16_t esperado = i >= 5 && i <= 9 ? PUNTERO_PROHIBIDO : PUNTERO_PROPIO;
        EXPECT_EQ(puntero(i), esperado) << i;
        EXPECT_EQ(teselari.Pic_BotonDerecho[i].MousePointer, esperado) << i;
    }
}

} // namespace
