#include "session/SesionBloques.h"

#include <cstdint>
#include <limits>

#include "core/PuzzGbl.h"
#include "core/TextoIni.h"

using namespace PuzzGbl;

namespace {

// One line of the file, read field after field.
class LineaLeida {
  public:
    explicit LineaLeida(LecturaSesion &l) : l_(l) {
        if (l.siguiente < l.lineas.size()) {
            campos_ = DivideCampos(l.lineas[l.siguiente++]);
        } else {
            Falla();
        }
    }

    // A number of the variable's width; assigned only within [minimo, maximo].
    template <class T> void Numero(T &v, int64_t minimo, int64_t maximo) {
        const CampoIni *c = Campo();
        if (c == nullptr) {
            return;
        }
        const auto n = LeeNumero(*c, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
        if (!n) {
            Falla();
        } else if (*n < minimo || *n > maximo) {
            l_.danado = true;
        } else {
            v = static_cast<T>(*n);
        }
    }

    void Logico(bool &v) {
        const CampoIni *c = Campo();
        if (c == nullptr) {
            return;
        }
        const auto b = LeeLogico(*c);
        if (b) {
            v = *b;
        } else {
            Falla();
        }
    }

    void Cadena(std::string &v) {
        const CampoIni *c = Campo();
        if (c == nullptr) {
            return;
        }
        auto s = LeeCadena(*c);
        if (s) {
            v = std::move(*s);
        } else {
            Falla();
        }
    }

  private:
    const CampoIni *Campo() {
        if (rota_ || i_ >= campos_.size()) {
            Falla();
            return nullptr;
        }
        return &campos_[i_++];
    }
    void Falla() {
        rota_ = true;
        l_.errorLectura = true;
    }

    LecturaSesion &l_;
    std::vector<CampoIni> campos_;
    size_t i_ = 0;
    bool rota_ = false;
};

constexpr int64_t I32_MAX = std::numeric_limits<int32_t>::max();

void LeeBloque1(LecturaSesion &l) {
    LineaLeida linea(l);
    linea.Cadena(FicheroImagen);
    linea.Numero(FactorPegado, 0, 100);
    linea.Numero(ColorFondo, 0, 5);
    linea.Numero(Cronometro, 1, 2);
    linea.Logico(ModeloVisible);
    std::string nombre = NombreJugador;
    linea.Cadena(nombre);
    NombreJugador = CadenaFija(nombre, 9);
    linea.Numero(Velocidad, 0, 100);
    linea.Numero(Sonido, 1, 2);
    linea.Numero(Pistas, 1, 2);
}

void LeeBloque2(LecturaSesion &l) {
    for (int i = 1; i <= 11; ++i) {
        LineaLeida linea(l);
        linea.Logico(BotonEnSiempre[i]);
        linea.Logico(BotonEnDerecho[i]);
    }
}

void LeeBloque3(LecturaSesion &l) {
    LineaLeida linea(l);
    linea.Cadena(NombreImagen);
    linea.Numero(NroPiezas, 9, 800); // counted again from the grid
    linea.Numero(PiezasPorLado, 3, 20);
    linea.Numero(PuzzleCompleto, -1, 0);
    linea.Numero(TipoPieza, 0, 5);
    linea.Numero(PartidaValida, -1, 0);
    linea.Numero(SegundosCronometro, 0, I32_MAX);
    linea.Numero(Zoom, 5, 995);
    linea.Cadena(UnidadImagen);
    linea.Cadena(CarpetaImagen);
}

// Whether the cell of a piece at (x, y) lies at least partly on the work
// area, where the player can reach it.
bool SobreElTablero(int32_t x, int32_t y) {
    const Superficie &t = teselari.Pic_Trabajo;
    return x > -AnchoPieza && x < t.Ancho() && y > -AltoPieza && y < t.Alto();
}

} // namespace

void LeeAjustes(LecturaSesion &l) {
    LeeBloque1(l);
    LeeBloque2(l);
    LeeBloque3(l);
}

bool LeePiezas(LecturaSesion &l) {
    const size_t n = NroPiezas > 0 ? static_cast<size_t>(NroPiezas) : 0;
    if (Piezas.size() != n + 1 || OrdenPiezas.size() != n + 1) {
        return false;
    }
    LecturaSesion bloque = l;
    bloque.errorLectura = bloque.danado = false;
    std::vector<Pieza> piezas(Piezas);
    std::vector<int16_t> orden(n + 1, 0);
    std::vector<bool> visto(n + 1, false);
    for (size_t i = 1; i <= n; ++i) {
        Pieza p = piezas[i];
        int16_t k = 0;
        LineaLeida linea(bloque);
        linea.Numero(p.X, INT32_MIN, I32_MAX);
        linea.Numero(p.Y, INT32_MIN, I32_MAX);
        linea.Numero(p.XCorrecta, INT32_MIN, I32_MAX);
        linea.Numero(p.YCorrecta, INT32_MIN, I32_MAX);
        linea.Numero(k, 1, static_cast<int64_t>(n));
        if (bloque.errorLectura || bloque.danado || visto[static_cast<size_t>(k)] ||
            p.XCorrecta != piezas[i].XCorrecta || p.YCorrecta != piezas[i].YCorrecta ||
            !SobreElTablero(p.X, p.Y)) {
            return false;
        }
        visto[static_cast<size_t>(k)] = true;
        piezas[i] = p;
        orden[i] = k;
    }
    l.siguiente = bloque.siguiente;
    Piezas = std::move(piezas);
    OrdenPiezas = std::move(orden);
    return true;
}
