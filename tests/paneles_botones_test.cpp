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
    void Pantalla(int16_t ancho, int16_t alto) {
        AnchoPantalla = ancho;
        AltoPantalla = alto;
    }
};

struct CasoSiempre {
    const char *nombre;
    int16_t alto_pantalla;
    std::vector<int> botones; // allocated to the panel
    int ancho, alto, bsinfo;
    // Place of each allocated button, in the order of the list.
    std::vector<std::pair<int, int>> sitios;
};

std::vector<std::pair<int, int>> Columna(int x, int desde, int cuantos) {
    std::vector<std::pair<int, int>> r;
    for (int k = 0; k < cuantos; ++k) {
        r.push_back({x, 3 + 58 * (desde + k)});
    }
    return r;
}

std::vector<std::pair<int, int>> DosColumnas(int primera, int segunda) {
    auto r = Columna(3, 0, primera);
    auto s = Columna(61, 0, segunda);
    r.insert(r.end(), s.begin(), s.end());
    return r;
}

const CasoSiempre casos_siempre[] = {
    // 11 x 58 + 6 + 23 = 667 fits above the bar of a 768 screen.
    {"Once768", 768, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 62, 667, 56, Columna(3, 0, 11)},
    // ... not on 600: two columns of 6 and 5.
    {"Once600", 600, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 120, 377, 114, DosColumnas(6, 5)},
    // The first height where one column fits: 667 + the bar's 16.
    {"Once683", 683, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 62, 667, 56, Columna(3, 0, 11)},
    {"Once682", 682, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 120, 377, 114, DosColumnas(6, 5)},
    // Ten: two columns of 5 and 5.
    {"Diez600", 600, {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}, 120, 319, 114, DosColumnas(5, 5)},
    {"Tres600", 600, {2, 5, 11}, 62, 203, 56, Columna(3, 0, 3)},
    // No button: only the count, 6 + 23 high.
    {"Ninguno", 768, {}, 62, 29, 56, {}},
};

class PanelSiempre : public Paneles, public ::testing::WithParamInterface<CasoSiempre> {};

TEST_P(PanelSiempre, SeDisponeSegunElAltoDePantalla) {
    const CasoSiempre &c = GetParam();
    Pantalla(1024, c.alto_pantalla);
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
    EXPECT_FLOAT_EQ(AuxColumna, static_cast<float>(1024 - 16 - c.ancho));
    EXPECT_EQ(f.Pic_BSInfo.Ancho(), c.bsinfo);
    EXPECT_EQ(f.Pic_BSInfo.Alto(), 23);
    EXPECT_EQ(f.Pic_BSInfo.Left, 3);
    EXPECT_EQ(f.Pic_BSInfo.Top, c.alto - 26);
    size_t k = 0;
    for (int i = 1; i <= 11; ++i) {
        const CuadroImagen &b = f.Pic_BotonSiempre[i];
        EXPECT_EQ(b.Visible, BotonEnSiempre[i]) << "button " << i;
        if (BotonEnSiempre[i]) {
            ASSERT_LT(k, c.sitios.size());
            EXPECT_EQ(b.Left, c.sitios[k].first) << "button " << i;
            EXPECT_EQ(b.Top, c.sitios[k].second) << "button " << i;
            // Every button lies inside the panel, clear of the count.
            EXPECT_LE(b.Left + 56, c.ancho - 1);
            EXPECT_LE(b.Top + 56, f.Pic_BSInfo.Top);
            ++k;
        }
    }
    // The frame: grey bottom and right, white top and left.
    const CuadroImagen &p = f.Pic_BotonesSiempre;
    EXPECT_EQ(p.Point(c.ancho - 1, c.alto / 2), 0x808080u);
    EXPECT_EQ(p.Point(c.ancho / 2, c.alto - 1), 0x808080u);
    EXPECT_EQ(p.Point(c.ancho / 2, 0), COLOR_BLANCO);
    EXPECT_EQ(p.Point(0, c.alto / 2), COLOR_BLANCO);
    EXPECT_EQ(p.Point(1, 1), GRIS_PANEL);
}

INSTANTIATE_TEST_SUITE_P(Disposicion, PanelSiempre, ::testing::ValuesIn(casos_siempre),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST_F(Paneles, ElPanelNoTapaElCronometro) {
    struct Caso {
        int antes, despues;
    };
    // The panel stands at 946; the chronometer (62 wide) must end by then.
    const Caso casos[] = {{950, 884}, {885, 884}, {884, 884}, {100, 100}};
    for (const Caso &c : casos) {
        teselari.Pic_Cronome.Left = c.antes;
        DibujaBotonesSiempre();
        EXPECT_EQ(teselari.Pic_Cronome.Left, c.despues) << c.antes;
    }
}

TEST_F(Paneles, ElPanelEscribeLaCuentaAlPie) {
    RotuladorRegistro r;
    PonServicio(&ServiciosPlataforma::Texto, &r);
    NroPiezas = 64;
    DibujaBotonesSiempre();
    PonServicio(&ServiciosPlataforma::Texto, nullptr);
    ASSERT_EQ(r.textos.size(), 1u);
    EXPECT_EQ(r.textos[0].texto, "0 / 64");
    EXPECT_EQ(r.textos[0].color, 0xFF0000u);
}

TEST_F(Paneles, UnBotonEnMarchaVuelvePulsadoAlRehacerElPanel) {
    BotonPulsado[7] = VERDADERO;
    DibujaBotonesSiempre();
    const CuadroImagen &b7 = teselari.Pic_BotonSiempre[7];
    const CuadroImagen &b6 = teselari.Pic_BotonSiempre[6];
    // Down: the image starts at 5; up: at 3.
    EXPECT_EQ(b7.Point(4, 4), GRIS_PANEL);
    EXPECT_EQ(b7.Point(5, 5), CuerpoPrueba(7));
    EXPECT_EQ(b6.Point(3, 3), CuerpoPrueba(6));
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
    {"ArribaDerecha", 768, 1000, 0, 947, 0, 61, 641},
    {"AbajoIzquierda", 768, 0, 700, 0, 111, 61, 641},
    {"AbajoDerecha", 768, 1020, 760, 947, 111, 61, 641},
    {"JustoCabe", 768, 947, 111, 947, 111, 61, 641},
    {"UnoDeMas", 768, 948, 112, 947, 111, 61, 641},
    {"Medio", 768, 400, 50, 400, 50, 61, 641},
    {"DosColumnasAbajoDerecha", 600, 990, 580, 889, 233, 119, 351},
    {"DosColumnasArriba", 600, 10, 20, 10, 20, 119, 351},
};

class PanelDerecho : public Paneles, public ::testing::WithParamInterface<CasoDerecho> {};

TEST_P(PanelDerecho, SeAbreJuntoAlRatonSinSalirDeLaPantalla) {
    const CasoDerecho &c = GetParam();
    Pantalla(1024, c.alto_pantalla);
    BotonEnDerecho.fill(true);
    DibujaBotonesDerecho(c.x, c.y);
    const CuadroImagen &p = teselari.Pic_BotonesDerecho;
    EXPECT_TRUE(p.Visible);
    EXPECT_EQ(p.Left, c.left);
    EXPECT_EQ(p.Top, c.top);
    EXPECT_EQ(p.Ancho(), c.ancho);
    EXPECT_EQ(p.Alto(), c.alto);
    // Clear of both scroll bars.
    EXPECT_LE(p.Left + p.Ancho(), 1024 - 16);
    EXPECT_LE(p.Top + p.Alto(), c.alto_pantalla - 16);
    const bool dos = c.ancho == 119;
    for (int i = 1; i <= 11; ++i) {
        const CuadroImagen &b = teselari.Pic_BotonDerecho[i];
        EXPECT_TRUE(b.Visible);
        const int fila = dos && i > 6 ? i - 7 : i - 1;
        EXPECT_EQ(b.Left, dos && i > 6 ? 61 : 3) << i;
        EXPECT_EQ(b.Top, 3 + 58 * fila) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Esquinas, PanelDerecho, ::testing::ValuesIn(casos_derecho),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST_F(Paneles, SinBotonesElPanelDerechoNoSeAbre) {
    BotonEnDerecho.fill(false);
    teselari.Pic_BotonesDerecho.Move(5, 6, 7, 8);
    DibujaBotonesDerecho(300, 300);
    const CuadroImagen &p = teselari.Pic_BotonesDerecho;
    EXPECT_FALSE(p.Visible);
    EXPECT_EQ(p.Left, 5);
    EXPECT_EQ(p.Top, 6);
    EXPECT_EQ(p.Ancho(), 7);
}

TEST_F(Paneles, SoloLosBotonesAsignadosSeVenEnElPanelDerecho) {
    BotonEnDerecho.fill(false);
    BotonEnDerecho[4] = BotonEnDerecho[9] = true;
    DibujaBotonesDerecho(100, 100);
    const FormTeselari &f = teselari;
    EXPECT_EQ(f.Pic_BotonesDerecho.Alto(), 2 * 58 + 3);
    for (int i = 1; i <= 11; ++i) {
        EXPECT_EQ(f.Pic_BotonDerecho[i].Visible, i == 4 || i == 9) << i;
    }
    EXPECT_EQ(f.Pic_BotonDerecho[4].Top, 3);
    EXPECT_EQ(f.Pic_BotonDerecho[9].Top, 61);
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
    Superficie arriba = c;
    EXPECT_EQ(CuentaColor(c, SOMBRA_PRUEBA), sombra);
    EXPECT_EQ(CuentaColor(c, CuerpoPrueba(i)), 48 * 48 - sombra);
    EXPECT_EQ(c.Point(3, 3), CuerpoPrueba(i));
    EXPECT_EQ(c.Point(2, 2), GRIS_PANEL);
    EXPECT_FLOAT_EQ(PosicionX, 3.0f);

    BotonPulsado[i] = VERDADERO;
    DibuBot(i, c);
    EXPECT_EQ(CuentaColor(c, SOMBRA_PRUEBA), 0);
    EXPECT_EQ(CuentaColor(c, CuerpoPrueba(i)), 48 * 48 - sombra);
    EXPECT_EQ(CuentaColor(c, GRIS_PANEL), 56 * 56 - (48 * 48 - sombra));
    for (const auto &[x, y] : SemillasSombra()[static_cast<size_t>(i)]) {
        EXPECT_EQ(c.Point(x, y), GRIS_PANEL) << x << "," << y;
    }
    EXPECT_EQ(c.Point(5, 5), CuerpoPrueba(i));
    EXPECT_EQ(c.Point(4, 4), GRIS_PANEL);
    EXPECT_FLOAT_EQ(PosicionY, 5.0f);

    // Released, it is exactly the button it was.
    BotonPulsado[i] = FALSO;
    DibuBot(i, c);
    EXPECT_TRUE(MismosPixeles(c, arriba));
}

INSTANTIATE_TEST_SUITE_P(LosOnce, AspectoBoton, ::testing::Range(1, 12));

TEST_F(Paneles, LasPistasSonLosTextosSinBlancos) {
    Pistas = 1;
    ActualizaPistas();
    const FormTeselari &f = teselari;
    EXPECT_EQ(f.Pic_BotonSiempre[1].ToolTipText, "Ayuda de la aplicación");
    EXPECT_EQ(f.Pic_BotonDerecho[3].ToolTipText, "Mostrar modelo");
    EXPECT_EQ(f.Pic_BotonSiempre[11].ToolTipText, "Salir de la aplicación");
    for (int i = 1; i <= 11; ++i) {
        const std::string &t = f.Pic_BotonSiempre[i].ToolTipText;
        EXPECT_FALSE(t.empty());
        EXPECT_NE(t.back(), ' ');
        EXPECT_EQ(t, f.Pic_BotonDerecho[i].ToolTipText);
    }
    Pistas = 2;
    ActualizaPistas();
    for (int i = 1; i <= 11; ++i) {
        EXPECT_EQ(f.Pic_BotonSiempre[i].ToolTipText, "");
        EXPECT_EQ(f.Pic_BotonDerecho[i].ToolTipText, "");
    }
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
    // After a new deal the hand comes back at the next move.
    PuzzleCompleto = FALSO;
    Pic_BotonSiempre_MouseMove(7, 0, 0, 10, 10);
    EXPECT_EQ(puntero(7), PUNTERO_PROPIO);
}

} // namespace
