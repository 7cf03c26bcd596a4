// The picture column of AbrirFic: the zoom that brings a file within the
// limits, its messages, the shapes the proportions allow, the lists of
// files and folders, the clipboard picture.

#include "dialogo_comun.h"
#include "plataforma_prueba.h"

using namespace PuzzGbl;
using sesion_prueba::mensajes;
using sesion_prueba::sonidos;

namespace {

struct CasoZoom {
    int32_t w, h;
    int16_t zoom;
    bool valida;
    int32_t origenW, origenH; // Pic_Origin afterwards (the old one when refused)
    const char *titulo;       // "" for no message
    const char *fragmento;
};

const CasoZoom casosZoom[] = {
    {320, 240, 100, true, 320, 240, "", ""},
    {1024, 768, 100, true, 1024, 768, "", ""},
    {200, 150, 165, true, 330, 247, "Imagen fuera de límites",
     "( 200 x 150 pixels ) no está dentro de los límites permitidos:"},
    {1600, 1200, 60, true, 960, 720, "Imagen fuera de límites", "( 1600 x 1200 pixels )"},
    {319, 240, 105, true, 334, 252, "Imagen fuera de límites", "( 319 x 240 pixels )"},
    {300, 800, 95, true, 285, 760, "Imagen fuera de límites", "( 300 x 800 pixels )"},
    {32, 240, 1005, false, 640, 480, "Imagen no válida", "( 32 x 240 pixels)"},
    {25000, 10, 0, false, 640, 480, "Imagen no válida", "( 25000 x 10 pixels)"},
};

class ZoomDeFichero : public Dialogo, public ::testing::WithParamInterface<CasoZoom> {};

} // namespace

TEST_P(ZoomDeFichero, LlevaLaImagenALosLimitesORechaza) {
    const CasoZoom &c = GetParam();
    AbreConImagen("z.bmp", c.w, c.h);
    EXPECT_EQ(Zoom, c.zoom);
    EXPECT_EQ(ImagenValida, c.valida ? VERDADERO : FALSO);
    EXPECT_EQ(FicheroImagen, fotos + "/z.bmp");
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), c.origenW);
    EXPECT_EQ(teselari.Pic_Origin.Alto(), c.origenH);
    if (std::string(c.titulo).empty()) {
        EXPECT_TRUE(mensajes.empty());
        return;
    }
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, c.titulo);
    EXPECT_NE(mensajes[0].texto.find(c.fragmento), std::string::npos) << mensajes[0].texto;
    EXPECT_EQ(mensajes[0].lineas, c.valida ? 8 : 9);
    // The refusal has its sound; the size shown is the zoomed one.
    EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 9), c.valida ? 0 : 1);
    if (c.valida) {
        EXPECT_EQ(rotulador.Ultimo(f->Pic_DatosBmp), "Alto: " + std::to_string(c.origenH));
        EXPECT_EQ(rotulador.Ultimo(f->Pic_PorcZoom), std::to_string(c.zoom) + "%");
    }
}

INSTANTIATE_TEST_SUITE_P(Tamanos, ZoomDeFichero, ::testing::ValuesIn(casosZoom));

// A picture too large to hold whole comes reduced from the loader, which
// states its own size: the rules and the rebuild count with that size.
struct CasoGrande {
    int32_t w, h;
    int16_t zoom;
    int32_t origenW, origenH;
};

CasoGrande grande;
CargaDeImagen CargadorReducido(const std::string &, Superficie &destino) {
    PintaImagenGenerada(destino, grande.w / 10, grande.h / 10);
    return {EstadoCarga::Leida, grande.w, grande.h};
}

TEST_F(Dialogo, ElZoomCuentaConElTamanoDelFichero) {
    PonServicio(&ServiciosPlataforma::CargaImagen, CargadorReducido);
    for (const CasoGrande &c :
         {CasoGrande{10000, 7000, 10, 1000, 700}, CasoGrande{9000, 9000, 5, 450, 450}}) {
        grande = c;
        AbreConImagen("g" + std::to_string(c.zoom) + ".bmp", 20, 20);
        EXPECT_EQ(Zoom, c.zoom);
        EXPECT_EQ(ImagenValida, VERDADERO);
        ASSERT_EQ(mensajes.size(), 1u);
        EXPECT_EQ(mensajes[0].titulo, "Imagen fuera de límites");
        EXPECT_EQ(teselari.Pic_Origin.Ancho(), c.origenW);
        EXPECT_EQ(teselari.Pic_Origin.Alto(), c.origenH);
        // A step up is checked against the file's size too: shown, then
        // taken back with the zoom's own message.
        std::vector<int16_t> vistos;
        f->AlRefrescar = [&vistos] { vistos.push_back(Zoom); };
        f->Pic_Zoom_MouseDown(1, 0, 120, 30);
        EXPECT_NE(std::find(vistos.begin(), vistos.end(), c.zoom + 5), vistos.end());
        EXPECT_EQ(Zoom, c.zoom);
        EXPECT_EQ(rotulador.Ultimo(f->Pic_PorcZoom), std::to_string(c.zoom) + "%");
        ASSERT_EQ(mensajes.size(), 2u);
        EXPECT_EQ(mensajes[1].lineas, 6);
        EXPECT_EQ(teselari.Pic_Origin.Ancho(), c.origenW);
    }
}

// Pieces with knobs want proportions within 0.476..2.1, stars 0.416..2.4;
// going back to a square picture gives every shape back.
TEST_F(Dialogo, LasFormasQueNoCabenSeApagan) {
    const struct {
        int32_t w, h;
        int16_t tipoAntes, tipoDespues;
        bool conPestanas, estrellas;
    } casos[] = {{1000, 300, 1, 0, false, false}, {1000, 300, 5, 0, false, false},
                 {700, 300, 1, 0, false, true},   {700, 300, 5, 5, false, true},
                 {300, 700, 3, 3, false, true},   {630, 300, 1, 1, true, true}};
    for (const auto &c : casos) {
        TipoPieza = c.tipoAntes;
        PiezasDobles = c.tipoAntes > 1 ? 1 : 0;
        AbreConImagen("p.bmp", c.w, c.h);
        EXPECT_EQ(TipoPieza, c.tipoDespues) << c.w << " " << c.tipoAntes;
        EXPECT_EQ(f->Pic_TipPuz[1].Enabled, c.conPestanas) << c.w;
        EXPECT_EQ(f->Pic_TipPuz[5].Enabled, c.estrellas) << c.w;
        EXPECT_EQ(f->Rec_MarcaTip.Left, f->Pic_TipPuz[c.tipoDespues].Left - 2);
        EXPECT_EQ(f->Rec_MarcaTip.Top, f->Pic_TipPuz[c.tipoDespues].Top - 2);
        Elige("a.bmp");
        EXPECT_TRUE(f->Pic_TipPuz[1].Enabled && f->Pic_TipPuz[5].Enabled);
    }
}

// Setting the entry already chosen, or none again, is no click.
TEST(ListaDialogo, ElMismoIndiceNoVuelveAAvisar) {
    ListaDialogo l;
    int clicks = 0;
    l.Click = [&clicks] { ++clicks; };
    l.AddItem("uno");
    l.AddItem("dos");
    for (int32_t i : {1, 1, 7, -1, 0}) { // 7 is no entry: none
        l.PonListIndex(i);
    }
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(l.ListIndex(), 0);
}

// The saved game has no way to write a double quote or a line break: such a
// file is refused, and the picture chosen before stays.
TEST_F(Dialogo, UnNombreConComillasOSaltoNoSeToma) {
    for (const char *nombre : {"con\"comillas.bmp", "dos\nlineas.bmp"}) {
        AbreConImagen(nombre, 400, 300);
        ASSERT_EQ(mensajes.size(), 1u) << nombre;
        EXPECT_EQ(mensajes[0].titulo, "Imagen no válida");
        EXPECT_EQ(mensajes[0].lineas, 5);
        EXPECT_EQ(sonidos.back(), 9);
        EXPECT_EQ(FicheroImagen, fotos + "/a.bmp");
        EXPECT_EQ(ImagenValida, VERDADERO);
        EXPECT_EQ(teselari.Pic_Origin.Ancho(), 640);
    }
}

// The pictures' pattern without regard to case, sorted the same way; no
// hidden file and no folder.
TEST_F(Dialogo, File1ListaLasImagenesOrdenadasSinMayusculas) {
    for (const char *n :
         {"B.JPG", "c.Bmp", "a.emf", "x.y.jpg", "d.png", ".oculta.bmp", "e.jpeg", "f.bmpx"}) {
        sesion_prueba::EscribeFichero(fotos + "/" + n, "x");
    }
    std::filesystem::create_directories(fotos + "/carpeta.bmp");
    ListaFicheros l;
    l.Pattern = "*.bmp;*.rle;*.wmf;*.emf;*.jpg";
    l.PonPath(fotos);
    EXPECT_EQ(l.Elementos(),
              (std::vector<std::string>{"a.bmp", "a.emf", "B.JPG", "c.Bmp", "x.y.jpg"}));
    EXPECT_EQ(l.ListIndex(), -1);
    EXPECT_TRUE(CoincideConPatron("r2d2.txt", "r?d?.*"));
    EXPECT_FALSE(CoincideConPatron("r2d.txt", "r?d?.*"));
}

// --- clipboard ---

TEST_F(Dialogo, ElPortapapelesPasaPorTeseportComoCualquierFichero) {
    PonServicio(&ServiciosPlataforma::Dialogo,
                {dialogo_prueba::MuestraModalDePrueba, nullptr, [] { return true; },
                 [](Superficie &s) {
                     PintaImagenGenerada(s, 400, 300);
                     return true;
                 }});
    Abre();
    EXPECT_TRUE(f->Bot_Portapapeles.Enabled);
    f->Bot_Portapapeles_Click();
    EXPECT_EQ(NombreImagen, "teseport.bmp");
    EXPECT_EQ(f->File1.Text(), "teseport.bmp");
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 400);
    // Accepting saves the picture again, over the file.
    std::filesystem::remove(fotos + "/teseport.bmp");
    f->Pic_Si_MouseDown(1, 0, 10, 10);
    EXPECT_TRUE(f->Descargado());
    EXPECT_TRUE(std::filesystem::exists(fotos + "/teseport.bmp"));
}
