// The book Historic: its sorted sections, the turning of pages, the tabs,
// the patches over them, the mouse, the name, and what it writes where.
#include "core/Cronometro.h"
#include "historico_comun.h"
#include "history/FormHistoric.h"
#include "history/ServiciosHistorico.h"
#include "panels/Comandos.h"

using namespace PuzzGbl;

namespace {

class Libro : public Historia {
  protected:
    void SetUp() override {
        Historia::SetUp();
        PonServicio(&ServiciosPlataforma::Texto, &rotulador);
    }
    void TearDown() override {
        PonServicio(&ServiciosPlataforma::Texto, nullptr);
        PonServicio(&ServiciosPlataforma::Historico, ServiciosHistorico{});
        Historia::TearDown();
    }
    void Llena(const std::vector<RegistroHistorico> &registros) {
        Historico.assign(1, RegistroHistorico{});
        Historico.insert(Historico.end(), registros.begin(), registros.end());
        Historico.resize(Historico.size() + 20);
        NroRegistrosHistorico = static_cast<int16_t>(registros.size());
    }
    void LlenaNumerados(int n) {
        std::vector<RegistroHistorico> r;
        for (int i = 1; i <= n; ++i) {
            r.push_back(RegistroNumerado(i));
        }
        Llena(r);
    }
    // The records of the spread just written, by the number in their date:
    // left page, right page, 0 for a page left blank.
    std::pair<int, int> Pliego() {
        auto numero = [this](double x) {
            const std::string t = rotulador.En(x, 17);
            return t.size() > 1 && t[0] == 'R' ? std::stoi(t.substr(1)) : 0;
        };
        std::pair<int, int> p{numero(170), numero(421)};
        rotulador.escritos.clear();
        return p;
    }
    // The sections whose tabs the patch on margin `lado` (1 left, 2 right)
    // leaves uncovered, as digits: "12" for sections 1 and 2.
    static std::string PestanasVisibles(const FormHistoric &f, int lado) {
        const CuadroImagen &t = f.Pic_Tapa[static_cast<size_t>(lado)];
        std::string v;
        for (int s = 1; s <= 4; ++s) {
            const int arriba = 30 + 72 * (s - 1), abajo = arriba + 66;
            if (abajo < t.Top || arriba >= t.Top + t.Alto()) {
                v += static_cast<char>('0' + s);
            }
        }
        return v;
    }
    RotuladorPrueba rotulador;
};

// A set that tells the three orders apart: names equal but for case, one
// name with ñ, equal difficulties with different times, records 7 and 12
// equal in every key, and 99.9 against 42.53.
std::vector<RegistroHistorico> RegistrosOrdenados() {
    const struct {
        const char *nombre, *imagen;
        float dificultad;
        int32_t segundos;
    } d[] = {
        {"ana", "b.jpg", 42.53f, 100}, {"ANA", "A.JPG", 99.9f, 50}, {"Bea", "b.jpg", 42.53f, 90},
        {"ñu", "c.jpg", 50, 10},       {"Oto", "c.jpg", 5.5f, 10},  {"Nora", "d.jpg", 6, 10},
        {"Eva", "e.jpg", 7, 20},       {"Zoe", "z.jpg", 8, 10},     {"Zoe", "z.jpg", 9, 10},
        {"Zoe", "z.jpg", 10, 10},      {"Zoe", "z.jpg", 11, 10},    {"Eva", "e.jpg", 7, 20}};
    std::vector<RegistroHistorico> r;
    for (int i = 0; i < 12; ++i) {
        r.push_back(
            RegistroNumerado(i + 1, d[i].nombre, d[i].imagen, d[i].dificultad, d[i].segundos));
    }
    return r;
}

struct CasoOrden {
    int16_t seccion;
    std::vector<int> orden;
};

class Orden : public Libro, public ::testing::WithParamInterface<CasoOrden> {};

// A tab opens its section; turning page after page shows every record once,
// in the section's order, with its place under "Orden".
TEST_P(Orden, LaSeccionMuestraLosRegistrosEnSuOrden) {
    Llena(RegistrosOrdenados());
    FormHistoric f;
    f.Form_Load();
    const int16_t s = GetParam().seccion;
    rotulador.escritos.clear();
    f.Form_MouseDown(1, 0, 524, static_cast<float>(30 + 72 * (s - 1) + 10));
    std::vector<int> visto;
    for (;;) {
        ASSERT_EQ(f.MarcaLibro, s);
        EXPECT_EQ(rotulador.En(170, 299), std::to_string(visto.size() + 1));
        const auto [izquierda, derecha] = Pliego();
        visto.push_back(izquierda);
        visto.push_back(derecha);
        if (f.ContadorPagina >= NroRegistrosHistorico) {
            break;
        }
        f.PaginaSiguiente();
    }
    EXPECT_EQ(visto, GetParam().orden);
}

INSTANTIATE_TEST_SUITE_P(Libro, Orden,
                         ::testing::Values(CasoOrden{1, {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1}},
                                           CasoOrden{2, {2, 1, 3, 7, 12, 6, 4, 5, 11, 10, 9, 8}},
                                           CasoOrden{3, {2, 1, 3, 4, 5, 6, 7, 12, 11, 10, 9, 8}},
                                           CasoOrden{4, {2, 4, 3, 1, 11, 10, 9, 8, 7, 12, 6, 5}}));

class Paginas : public Libro, public ::testing::WithParamInterface<int> {};

// Forward through the whole book and back again, on even and odd counts
// and an empty book: each section has its spreads, the last one of an odd
// count has a left page only, one more step leaves for the next section;
// backwards, the first spread of a section goes to the first spread of the
// one before, and the first section to the first page. The patches leave
// the tabs of the sections passed on the left margin, those ahead on the
// right one.
TEST_P(Paginas, AdelanteYAtrasPorTodoElLibro) {
    const int n = GetParam();
    LlenaNumerados(n);
    FormHistoric f;
    f.Form_Load();
    const int pliegos = std::max(1, (n + 1) / 2);
    for (int16_t s = 1; s <= 4; ++s) {
        for (int p = 1; p <= pliegos; ++p) {
            f.PaginaSiguiente();
            ASSERT_EQ(f.MarcaLibro, s);
            EXPECT_EQ(f.ContadorPagina, 2 * p);
            EXPECT_EQ(PestanasVisibles(f, 1), std::string("1234").substr(0, s));
            EXPECT_EQ(PestanasVisibles(f, 2), std::string("1234").substr(s));
            EXPECT_TRUE(f.Pic_Parche1.Visible);
            const auto [izquierda, derecha] = Pliego();
            EXPECT_EQ(izquierda != 0, 2 * p - 1 <= n);
            EXPECT_EQ(derecha != 0, 2 * p <= n);
        }
    }
    f.PaginaSiguiente();
    EXPECT_EQ(f.MarcaLibro, 4);
    EXPECT_TRUE(rotulador.escritos.empty());
    for (int p = pliegos - 1; p >= 1; --p) {
        f.PaginaAnterior();
        EXPECT_EQ(f.ContadorPagina, 2 * p);
    }
    for (int16_t s = 3; s >= 1; --s) {
        f.PaginaAnterior();
        EXPECT_EQ(f.MarcaLibro, s);
        EXPECT_EQ(f.ContadorPagina, 2);
    }
    f.PaginaAnterior();
    EXPECT_EQ(f.MarcaLibro, 0);
    EXPECT_TRUE(f.Tex_Nombre.Visible);
    EXPECT_FALSE(f.Pic_Parche1.Visible);
    EXPECT_EQ(PestanasVisibles(f, 2), "1234");
    EXPECT_EQ(f.Pic_Tapa[1].Left, 3);
    EXPECT_EQ(f.Pic_Tapa[2].Left, 512);
    f.PaginaAnterior();
    EXPECT_EQ(f.MarcaLibro, 0);
}

INSTANTIATE_TEST_SUITE_P(Libro, Paginas, ::testing::Values(0, 1, 4, 5));

struct CasoRaton {
    float x, y;
    bool caliente;
    int16_t marca;    // MarcaLibro after a press, from the first spread of section 2
    int16_t contador; // and ContadorPagina
    int16_t sonido;   // the clip played, 0 none
};

// Where the mouse is: the pointing hand over the arrow, the two corners and
// the tabs; a press acts there with clip 7 and the hourglass meanwhile, the
// arrow closes the book with clip 4.
TEST_F(Libro, ElRatonSobreElLibro) {
    LlenaNumerados(6);
    const CasoRaton casos[] = {
        {15, 16, true, 2, 2, 4},    {26, 27, true, 2, 2, 4},    {40, 326, true, 1, 2, 7},
        {498, 326, true, 2, 4, 7},  {15, 60, true, 1, 2, 7},    {524, 135, true, 2, 2, 7},
        {524, 290, true, 4, 2, 7},  {15, 99, false, 2, 2, 0},   {29, 60, false, 2, 2, 0},
        {498, 336, false, 2, 2, 0}, {300, 200, false, 2, 2, 0}, {540, 60, false, 2, 2, 0},
    };
    for (const CasoRaton &c : casos) {
        SCOPED_TRACE(std::to_string(c.x) + "," + std::to_string(c.y));
        FormHistoric f;
        f.Form_Load();
        for (int i = 0; i < 4; ++i) {
            f.PaginaSiguiente();
        }
        ASSERT_EQ(f.MarcaLibro, 2);
        f.Form_MouseMove(0, 0, c.x, c.y);
        EXPECT_EQ(f.Formulario.MousePointer, c.caliente ? PUNTERO_PROPIO : PUNTERO_NORMAL);
        EXPECT_EQ(f.Formulario.MouseIcon, c.caliente ? "MANOINDICE" : "");
        escritorio.sonidos.clear();
        int16_t puntero = -1;
        escritorio.alDejarPasarEventos = [&puntero](int32_t) { puntero = teselari.MousePointer; };
        Sonido = 1;
        f.Form_MouseDown(1, 0, c.x, c.y);
        escritorio.alDejarPasarEventos = nullptr;
        EXPECT_EQ(f.Descargado(), c.sonido == 4);
        EXPECT_EQ(f.MarcaLibro, c.marca);
        EXPECT_EQ(f.ContadorPagina, c.contador);
        EXPECT_EQ(escritorio.sonidos,
                  c.sonido ? std::vector<int16_t>{c.sonido} : std::vector<int16_t>{});
        EXPECT_EQ(puntero, c.sonido == 7 ? PUNTERO_ESPERA : c.sonido == 4 ? PUNTERO_NORMAL : -1);
        EXPECT_EQ(teselari.MousePointer, PUNTERO_NORMAL);
        f.Pic_Tapa_MouseMove(1, 0, 0, 5, 5);
        EXPECT_EQ(f.Formulario.MousePointer, PUNTERO_NORMAL);
    }
}

// What the first page and a record's page write, where, in which form; a
// value wider than its white column is set smaller, and one still too wide
// at the smallest letter is cut with an ellipsis inside the column. The
// name box of the first page shows the name without its padding; what is
// typed becomes NombreJugador, padded or cut to nine characters.
TEST_F(Libro, CadaValorEnSuRenglonYDentroDeSuColumna) {
    NombreImagen = "una fotografía de vacaciones con un nombre muy largo.jpg";
    AnchoPuzzle = 640;
    AltoPuzzle = 480;
    PiezasPorLado = 8;
    TipoPieza = 5;
    NroPiezas = 128;
    AnchoPieza = 80;
    AltoPieza = 60;
    Dificultad = 42.0625f;
    SegundosCronometro = 3725;
    PartidaValida = VERDADERO;
    RegistroHistorico r = RegistroNumerado(1, "Eva", "CASA.JPG", 99.9f, 3661);
    r.TipoPieza = 9;
    Llena({r});
    NombreJugador = "Ana      ";
    FormHistoric f;
    f.Form_Load();
    EXPECT_EQ(f.Tex_Nombre.Text, "Ana");
    for (const auto &[tecleado, nuevo] : {std::pair<std::string, std::string>{"Lucía", "Lucía    "},
                                          {"Bartolomé Pérez", "Bartolomé"}}) {
        f.Tex_Nombre.Text = tecleado;
        f.Tex_Nombre_Change();
        EXPECT_EQ(NombreJugador, nuevo);
    }
    const std::vector<std::pair<int, std::string>> primera = {
        {63, "640 x 480"},   {84, "8"},       {106, "Dobles"},  {148, "128"}, {169, "80 pixeles"},
        {190, "60 pixeles"}, {212, "42.063"}, {233, "1:02:05"}, {254, "Si"},  {275, "No"}};
    for (const auto &[y, texto] : primera) {
        EXPECT_EQ(rotulador.En(420, y), texto) << y;
    }
    for (const auto &e : rotulador.escritos) {
        EXPECT_LE(e.x + rotulador.Ancho(Fuente{"", e.tamano, true}, e.texto), 510.0) << e.texto;
    }
    const std::string imagen = rotulador.En(420, 42);
    EXPECT_EQ(imagen.rfind("una fotograf", 0), 0u);
    EXPECT_EQ(imagen.substr(imagen.size() - 3), "…");
    EXPECT_EQ(rotulador.escritos[4].texto, "Estrellas/Rect.");
    EXPECT_LT(rotulador.escritos[4].tamano, 8.25);
    rotulador.escritos.clear();
    f.PaginaSiguiente();
    EXPECT_FALSE(f.Tex_Nombre.Visible);
    const std::vector<std::pair<int, std::string>> registro = {
        {17, "R1"},      {37, "12:00:00"}, {57, "CASA.JPG"}, {118, "Dobles"}, {138, ""},
        {219, "99.900"}, {239, "1:01:01"}, {259, "50 %"},    {279, "Eva"},    {299, "1"}};
    for (const auto &[y, texto] : registro) {
        EXPECT_EQ(rotulador.En(170, y), texto) << y;
    }
}

// The narrow page becomes the double page: with a page whose every column
// has a colour of its own, each column of the form shows the one the
// spreading copies give it.
TEST_F(Libro, LaPaginaSeExtiendeEnDoblePagina) {
    ServiciosHistorico s;
    s.CargaImagenes = [](Superficie &pagina, Superficie &etiquetas) {
        for (int32_t x = 0; x < pagina.Ancho(); ++x) {
            pagina.CajaLlena(x, 0, x, 343, static_cast<Color>(x));
        }
        etiquetas.CajaLlena(0, 0, 123, 297, 0x123456);
    };
    PonServicio(&ServiciosPlataforma::Historico, s);
    FormHistoric f;
    f.Form_Load();
    for (int32_t x = 0; x < FormHistoric::ANCHO; ++x) {
        const int32_t origen = x < 56    ? x
                               : x < 252 ? 56
                               : x < 415 ? x - 195
                               : x < 487 ? 220
                                         : x - 266;
        ASSERT_EQ(f.Formulario.Point(x, 5), static_cast<Color>(origen)) << x;
    }
    EXPECT_EQ(f.Pic_Parche1.Point(10, 10), 0x123456u);
    EXPECT_EQ(f.Pic_Parche2.Point(10, 10), 0x123456u);
    EXPECT_EQ(f.Left, (AnchoPantalla - 541) / 2);
    EXPECT_EQ(f.Top, (AltoPantalla - 344) / 2);
}

// Command 10: the button down, the clock stopped and the pointer back to
// the default while the book stands; then the clock runs and the button is
// up again.
TEST_F(Libro, LaOrdenDiezAbreElLibro) {
    ServiciosHistorico s;
    static int abierto;
    abierto = 0;
    s.MuestraModal = [](FormHistoric &f) {
        ++abierto;
        EXPECT_EQ(RelojEnMarcha, FALSO);
        EXPECT_EQ(BotonPulsado[10], VERDADERO);
        EXPECT_EQ(teselari.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(f.MarcaLibro, 0);
    };
    PonServicio(&ServiciosPlataforma::Historico, s);
    ArrancaCronometro();
    PulsaBoton(10);
    EXPECT_EQ(abierto, 1);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
    EXPECT_EQ(BotonPulsado[10], FALSO);
}

} // namespace
