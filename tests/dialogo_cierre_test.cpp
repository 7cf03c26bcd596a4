// AbrirFic's opening and its two ways out: what each change does to the
// running game on Accept, Reject putting everything back, the pictures that
// keep the dialog open, and command 2 around it.
#include "dialogo_comun.h"
#include "panels/Comandos.h"
#include "session/Sesion.h"

using namespace PuzzGbl;
using namespace dialogo_prueba;
using sesion_prueba::mensajes;
using sesion_prueba::sonidos;

namespace {

struct Cambio {
    const char *nombre;
    std::function<void(FormAbrirFic &)> haz;
    bool cambiaPuzzle; // PuzzleCambiado on Accept
    bool barrasA0;     // the scroll bars and the clock go back to 0
    bool anulaPartida; // PartidaValida false
};

const Cambio cambios[] = {
    {"imagen", [](FormAbrirFic &f) { f.File1.PonListIndex(1); }, true, true, false},
    {"rejilla", [](FormAbrirFic &f) { f.Lis_NroPiezas.PonListIndex(0); }, true, true, false},
    {"forma", [](FormAbrirFic &f) { f.Pic_TipPuz_Click(4); }, true, true, false},
    {"zoom", [](FormAbrirFic &f) { f.Pic_Zoom_MouseDown(1, 0, BAJA_X, BAJA_Y); }, true, true,
     false},
    {"color", [](FormAbrirFic &f) { f.Pic_ColFon_Click(5); }, true, false, false},
    {"atraccion", [](FormAbrirFic &f) { f.Pic_FactorPegado_MouseDown(1, 0, SUBE_X, SUBE_Y); },
     false, false, true},
    {"atraccion y rejilla",
     [](FormAbrirFic &f) {
         f.Pic_FactorPegado_MouseDown(1, 0, SUBE_X, SUBE_Y);
         f.Lis_NroPiezas.PonListIndex(0);
     },
     true, true, true},
    {"velocidad", [](FormAbrirFic &f) { f.Pic_Velocidad_MouseDown(1, 0, BAJA_X, BAJA_Y); }, false,
     false, false},
    {"sonido", [](FormAbrirFic &f) { f.Pic_Sonido_MouseDown(1, 0, 10, 25); }, false, false, false},
    {"pistas", [](FormAbrirFic &f) { f.Pic_Pistas_MouseDown(1, 0, 10, 25); }, false, false, false},
    {"cronometro", [](FormAbrirFic &f) { f.Pic_Cronometro_MouseDown(1, 0, 10, 25); }, false, false,
     false},
    {"botones",
     [](FormAbrirFic &f) {
         f.Bot_Botones_Click();
         f.Opt_Derecho_Click(4);
         f.Pic_SalirPicBotones_Click();
     },
     false, false, false},
};

// Everything the dialog may touch, to compare before and after.
struct Estado {
    std::string fichero, nombre;
    std::array<int16_t, 10> valores;
    std::array<bool, 12> siempre, derecho;
    uint64_t origen;
    std::array<int32_t, 4> partida;
    bool operator==(const Estado &) const = default;
};

Estado EstadoActual() {
    return {FicheroImagen,
            NombreImagen,
            {PiezasPorLado, TipoPieza, PiezasDobles, Sonido, Cronometro, Pistas, ColorFondo,
             FactorPegado, Velocidad, Zoom},
            BotonEnSiempre,
            BotonEnDerecho,
            Huella(teselari.Pic_Origin),
            {PartidaValida, SegundosCronometro, teselari.BarraHor.Value(), PuzzleCambiado}};
}

class AceptarYRechazar : public Dialogo, public ::testing::WithParamInterface<Cambio> {
  protected:
    void SetUp() override {
        Dialogo::SetUp();
        PonImagen("b.bmp", 800, 600);
        Velocidad = 90;
        Cronometro = 1;
        PartidaValida = VERDADERO;
        SegundosCronometro = 77;
        for (BarraDesplazamiento *b : {&teselari.BarraHor, &teselari.BarraVer}) {
            b->PonMax(100);
            b->PonValue(30);
        }
        antes = EstadoActual();
        Abre();
        ASSERT_EQ(EstadoActual(), antes) << "the opening changed the game";
        GetParam().haz(*f);
    }
    Estado antes;
};

} // namespace

TEST_P(AceptarYRechazar, AceptarDiceAlJuegoLoQueCambio) {
    const Cambio &c = GetParam();
    f->Pic_Si_MouseDown(1, 0, 5, 5);
    ASSERT_TRUE(f->Descargado());
    EXPECT_EQ(PuzzleCambiado, c.cambiaPuzzle ? VERDADERO : FALSO);
    EXPECT_EQ(teselari.BarraHor.Value(), c.barrasA0 ? 0 : 30);
    EXPECT_EQ(teselari.BarraVer.Value(), c.barrasA0 ? 0 : 30);
    EXPECT_EQ(SegundosCronometro, c.barrasA0 ? 0 : 77);
    EXPECT_EQ(PartidaValida, c.anulaPartida ? FALSO : VERDADERO);
    EXPECT_EQ(teselari.Pic_Cronome.Visible, Cronometro != 2);
    EXPECT_EQ(teselari.MousePointer, PUNTERO_ESPERA);
}

TEST_P(AceptarYRechazar, RechazarDejaElJuegoComoEstaba) {
    f->Pic_No_MouseDown(1, 0, 5, 5);
    ASSERT_TRUE(f->Descargado());
    EXPECT_EQ(EstadoActual(), antes);
    EXPECT_EQ(teselari.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(NroPiezas, PiezasPorLado * PiezasPorLado * (1 + PiezasDobles));
}

INSTANTIATE_TEST_SUITE_P(Cambios, AceptarYRechazar, ::testing::ValuesIn(cambios),
                         [](const auto &i) {
                             std::string n = i.param.nombre;
                             std::replace(n.begin(), n.end(), ' ', '_');
                             return n;
                         });

TEST_F(Dialogo, RechazarTrasUnaImagenNoValidaInsisteHastaUnaValida) {
    PonImagen("mini.bmp", 20, 20);
    PonImagen("b.bmp", 800, 600);
    const std::string fichero = FicheroImagen;
    Abre();
    Elige("mini.bmp");
    ASSERT_EQ(ImagenValida, FALSO);
    mensajes.clear();
    for (int i = 0; i < 2; ++i) {
        f->Pic_No_MouseDown(1, 0, 5, 5);
        f->Pic_Si_MouseDown(1, 0, 5, 5);
    }
    EXPECT_FALSE(f->Descargado());
    ASSERT_EQ(mensajes.size(), 4u); // the refusal, once per press
    EXPECT_EQ(mensajes[3].titulo, "Imagen no válida");
    Elige("b.bmp");
    f->Pic_No_MouseDown(1, 0, 5, 5);
    EXPECT_TRUE(f->Descargado());
    EXPECT_EQ(FicheroImagen, fichero);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 640);
    // The folder of the last choice stays for the next opening.
    EXPECT_EQ(CarpetaImagen, fotos);
}

TEST_F(Dialogo, AbrirDondeNoEstaLaImagenTomaLaPrimeraComoUnClick) {
    PonImagen("0.bmp", 640, 480);
    NombreImagen = "otra.bmp";
    Abre();
    EXPECT_EQ(NombreImagen, "0.bmp");
    EXPECT_EQ(FicheroImagen, fotos + "/0.bmp");
    EXPECT_NE(std::find(sonidos.begin(), sonidos.end(), 12), sonidos.end());
    f->Pic_Si_MouseDown(1, 0, 5, 5);
    EXPECT_EQ(PuzzleCambiado, VERDADERO);
}

// An empty folder evaluates nothing and the zoom has no file to act on;
// Accept keeps the game's picture, and without a usable one neither way
// out leads anywhere until a picture is chosen. Reject still has no game
// to go back to then; Accept does.
TEST_F(Dialogo, EnCarpetaVaciaNadaSeEvaluaNiSeSaleSinImagen) {
    const std::string vacia = raiz + "/vacia";
    std::filesystem::create_directories(vacia);
    CarpetaImagen = vacia;
    const uint64_t origen = Huella(teselari.Pic_Origin);
    Abre();
    EXPECT_EQ(f->File1.ListCount(), 0);
    EXPECT_EQ(f->Pic_Comprobar.Ancho(), 0);
    EXPECT_EQ(f->Pic_Modelo.Point(10, 10), COLOR_BLANCO);
    EXPECT_TRUE(f->Pic_TipPuz[1].Enabled && f->Pic_TipPuz[5].Enabled);
    f->Pic_Zoom_MouseDown(1, 0, SUBE_X, SUBE_Y);
    EXPECT_EQ(Zoom, 100);
    EXPECT_EQ(Huella(teselari.Pic_Origin), origen);
    f->Pic_Si_MouseDown(1, 0, 5, 5);
    EXPECT_TRUE(f->Descargado());
    EXPECT_EQ(PuzzleCambiado, FALSO);
    EXPECT_EQ(FicheroImagen, fotos + "/a.bmp");

    ImagenValida = FALSO;
    Abre();
    for (int i = 0; i < 3; ++i) {
        f->Pic_Si_MouseDown(1, 0, 5, 5);
        f->Pic_No_MouseDown(1, 0, 5, 5);
    }
    EXPECT_FALSE(f->Descargado());
    EXPECT_TRUE(mensajes.empty());
    f->Dir1.PonPath(fotos);
    Elige("a.bmp");
    f->Pic_No_MouseDown(1, 0, 5, 5);
    EXPECT_FALSE(f->Descargado());
    f->Pic_Si_MouseDown(1, 0, 5, 5);
    EXPECT_TRUE(f->Descargado());
}

// A folder since deleted, or on a drive that is not there (a file written
// on Windows, a volume since unplugged), leads to the working folder,
// quietly and with the stored names; such a drive is not offered, and a
// picture taken there names the working folder's volume.
TEST_F(Dialogo, UnaCarpetaOUnidadQueNoEstaLlevaALaDeTrabajo) {
    PonImagen("../programa/t.bmp", 640, 480);
    for (const std::string unidad : {"/", "C:", "/media/teselari-desenchufada"}) {
        UnidadImagen = unidad;
        CarpetaImagen = (unidad == "/" ? raiz : unidad) + "/borrada";
        NombreImagen = "t.bmp";
        Abre();
        EXPECT_EQ(f->Dir1.Path(), programa) << unidad;
        EXPECT_EQ(f->File1.Text(), "t.bmp") << unidad;
        EXPECT_TRUE(mensajes.empty()) << unidad;
        if (unidad == "/") { // the folder's change is heard
            EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 12), 1);
        }
        const auto &lista = f->Drive1.Elementos();
        EXPECT_TRUE(unidad == "/" || std::count(lista.begin(), lista.end(), unidad) == 0);
        EXPECT_EQ(f->Drive1.Drive(), UnidadDeCarpeta(DirectorioTrabajo)) << unidad;
        f->File1.Pulsa(f->File1.ListIndex());
        EXPECT_EQ(UnidadImagen, UnidadDeCarpeta(DirectorioTrabajo)) << unidad;
    }
}

// From a first run's placement, every command moved to the right button's
// panel.
TEST_F(Dialogo, LaPaginaDeBotonesVuelveAMostrarLoElegido) {
    Abre();
    for (int16_t i = 1; i <= 11; ++i) {
        f->Bot_Botones_Click();
        f->Opt_Derecho_Click(i);
        f->Pic_SalirPicBotones_Click();
        EXPECT_FALSE(f->Pic_LugarBotones.Visible);
    }
    // All on the right button's panel: the page allows it.
    EXPECT_EQ(std::count(BotonEnDerecho.begin() + 1, BotonEnDerecho.end(), true), 11);
    EXPECT_EQ(std::count(BotonEnSiempre.begin() + 1, BotonEnSiempre.end(), true), 0);
    f->Bot_Botones_Click();
    EXPECT_EQ(f->Lab_Botones[11].Caption, "Salir de la aplicación");
}

// One press after the key gives the control's topic instead of acting; the
// next press acts again.
TEST_F(Dialogo, QueEsDaElTemaDelControlEnVezDeActuar) {
    Abre();
    EXPECT_FALSE(f->AtiendeQueEs(f->Lis_NroPiezas.WhatsThisHelpID));
    const std::pair<int16_t, int16_t> casos[] = {
        {f->File1.WhatsThisHelpID, 1231},         {f->Bot_Portapapeles.WhatsThisHelpID, 1232},
        {f->Pic_PorcZoom.WhatsThisHelpID, 1233},  {f->Lis_NroPiezas.WhatsThisHelpID, 1234},
        {f->Pic_TipPuz[3].WhatsThisHelpID, 1235}, {f->Pic_ColFon[0].WhatsThisHelpID, 1236},
        {f->Bot_Prueba.WhatsThisHelpID, 1237},    {f->Pic_PorcVelocidad.WhatsThisHelpID, 1238},
        {f->Pic_Pistas.WhatsThisHelpID, 1241},    {f->Opt_Siempre[2].WhatsThisHelpID, 1242},
    };
    for (const auto &[tema, esperado] : casos) {
        f->Bot_QueEs_Click();
        EXPECT_NE(f->MousePointer, PUNTERO_NORMAL);
        EXPECT_TRUE(f->AtiendeQueEs(tema));
        EXPECT_EQ(dialogo_prueba::temasAyuda.back(), esperado);
        EXPECT_EQ(f->MousePointer, PUNTERO_NORMAL);
        EXPECT_FALSE(f->AtiendeQueEs(tema)); // one click only
    }
}

// Accept after a change of speed alone leaves the deal; a new grid deals
// again, last, so that the game is valid and the clock at 0.
TEST_F(Dialogo, ElComandoDosSoloReparteSiCambiaElPuzzle) {
    PreparaBitmap();
    PartidaValida = VERDADERO;
    SegundosCronometro = 50;
    const std::vector<Pieza> piezas = Piezas;
    dialogo_prueba::alMostrar = [](FormAbrirFic &d) {
        d.Pic_Velocidad_MouseDown(1, 0, BAJA_X, BAJA_Y);
        d.Pic_Si_MouseDown(1, 0, 5, 5);
    };
    PulsaBoton(2);
    EXPECT_EQ(Piezas, piezas);
    EXPECT_EQ(Velocidad, 95);
    dialogo_prueba::alMostrar = [](FormAbrirFic &d) {
        d.Pic_FactorPegado_MouseDown(1, 0, SUBE_X, SUBE_Y);
        d.Lis_NroPiezas.PonListIndex(0);
        d.Pic_Si_MouseDown(1, 0, 5, 5);
    };
    PulsaBoton(2);
    EXPECT_EQ(NroPiezas, 25);
    EXPECT_EQ(PartidaValida, VERDADERO);
    EXPECT_EQ(SegundosCronometro, 0);
    EXPECT_EQ(BotonPulsado[2], FALSO);
    EXPECT_EQ(teselari.MousePointer, PUNTERO_NORMAL);
    EXPECT_TRUE(sesion_prueba::PartidaCoherente());
}

TEST_F(Dialogo, ElPrimerArranqueReparteUnaVezLaImagenElegida) {
    std::filesystem::remove(programa + "/TESEL32.INI");
    DirectorioTrabajo = fotos;
    int aperturas = 0;
    dialogo_prueba::alMostrar = [&aperturas](FormAbrirFic &d) {
        ++aperturas;
        d.Pic_Si_MouseDown(1, 0, 5, 5);
    };
    RestauraSesion();
    EXPECT_EQ(aperturas, 1);
    EXPECT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(NombreImagen, "a.bmp");
    EXPECT_TRUE(sesion_prueba::PartidaCoherente());
}
