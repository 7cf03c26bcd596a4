// Reading TESEL32.HIS into Historico at the start of the program.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <limits>
#include <new>
#include <set>

#include "core/ErroresFichero.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"
#include "history/LectorCampos.h"
#include "raster/Superficie.h"
#include "services/Mensajes.h"

using namespace PuzzGbl;

namespace {

// A full table is a few megabytes; what lies beyond this is not read.
constexpr size_t TAMANO_MAXIMO = size_t{64} << 20;

// The lines the message's text takes in its label, 365 pixels wide in the
// message's letter, and never fewer than the text was given: a face wider
// than the one the text was measured for must not cut its last words.
int16_t LineasDelMensaje(const std::string &texto, int16_t minimo) {
    Rotulador *r = RotuladorActual();
    if (r == nullptr) {
        return minimo;
    }
    const Fuente letra{"MS Sans Serif", 9.75, false};
    constexpr double ANCHO_ETIQUETA = 360; // the label's 365, less what its wrapping keeps free
    int16_t lineas = 1;
    std::string linea;
    size_t i = 0;
    while (i < texto.size()) {
        const size_t fin = std::min(texto.find(' ', i), texto.size());
        const std::string palabra = texto.substr(i, fin - i);
        const std::string prueba = linea.empty() ? palabra : linea + " " + palabra;
        if (!linea.empty() && r->Ancho(letra, prueba) > ANCHO_ETIQUETA) {
            ++lineas;
            linea = palabra;
        } else {
            linea = prueba;
        }
        i = fin + 1;
    }
    return std::max(lineas, minimo);
}

// The error handler of the reading: the number is kept, and told unless it
// is 6 or 62 or was told already in this reading (a badly damaged file
// would otherwise bury the start under the same message many times).
struct Errores {
    std::set<int16_t> dichos;

    void Trata(int16_t numero) {
        ErrorFichero = numero;
        if (numero == ERROR_DESBORDAMIENTO || numero == ERROR_FIN_DE_FICHERO ||
            !dichos.insert(numero).second) {
            return;
        }
        MuestraMensaje(MensajeErrorHis(numero, UnidadDeCarpeta(DirectorioTrabajo)));
    }
};

// Enters DirectorioTrabajo and reads the file; an error leaves it empty.
std::string AbreFichero(Errores &e) {
    if (::chdir(DirectorioTrabajo.c_str()) != 0) {
        e.Trata(ErrorDeCarpeta(errno));
        return {};
    }
    std::FILE *f = std::fopen("TESEL32.HIS", "rb");
    if (f == nullptr) {
        e.Trata(ErrorDeFichero(errno));
        return {};
    }
    struct stat datos {};
    if (::fstat(::fileno(f), &datos) == 0 && S_ISDIR(datos.st_mode)) {
        std::fclose(f);
        e.Trata(ERROR_ACCESO);
        return {};
    }
    std::string contenido;
    try {
        const auto tamano = static_cast<size_t>(std::max<off_t>(datos.st_size, 0));
        contenido.resize(std::min(tamano, TAMANO_MAXIMO));
        contenido.resize(std::fread(contenido.data(), 1, contenido.size(), f));
    } catch (const std::bad_alloc &) {
        contenido.clear();
        e.Trata(ERROR_MEMORIA);
    }
    if (std::ferror(f)) {
        e.Trata(ErrorDeFichero(errno));
    }
    std::fclose(f);
    return contenido;
}

// The fields of one record, in the order of the file. The numbers go
// straight into the record, the strings through `temporal` into their fixed
// fields: a string that fails leaves what the last good read left there.
class LectorRegistro {
  public:
    LectorRegistro(LectorCampos &l, Errores &e) : l_(l), e_(e) {}

    void Lee(RegistroHistorico &r) {
        Cadena(r.Fecha, 10);
        Cadena(r.Hora, 8);
        Cadena(r.Imagen, 12);
        for (int16_t *n : {&r.AnchoPuzzle, &r.AltoPuzzle, &r.PiezasPorLado, &r.TipoPieza,
                           &r.NroPiezas, &r.AnchoPieza, &r.AltoPieza}) {
            Entero(*n);
        }
        CampoIni c;
        if (Campo(c)) {
            Error(LeeDecimal(c, r.Dificultad));
        }
        Entero(r.Segundos);
        Entero(r.FactorPegado);
        Cadena(r.Nombre, 9);
    }

  private:
    LectorCampos &l_;
    Errores &e_;
    std::string temporal_;

    bool Campo(CampoIni &c) {
        if (!l_.Siguiente(c)) {
            e_.Trata(ERROR_FIN_DE_FICHERO);
            return false;
        }
        return true;
    }

    void Error(int16_t numero) {
        if (numero != 0) {
            e_.Trata(numero);
        }
    }

    void Cadena(std::string &campo, size_t ancho) {
        CampoIni c;
        if (Campo(c)) {
            c.cerrado = true; // a quote left open holds the rest of its line
            temporal_ = *LeeCadena(c);
        }
        campo = CadenaFija(temporal_, ancho);
    }

    template <typename T> void Entero(T &campo) {
        CampoIni c;
        int64_t v = 0;
        if (!Campo(c)) {
            return;
        }
        const int16_t error =
            LeeEntero(c, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), v);
        Error(error);
        if (error == 0) {
            campo = static_cast<T>(v);
        }
    }
};

// Where record number i of the file stands while reading: past the top of
// the table the newest records take the places of the oldest in turn.
size_t Hueco(int32_t i) {
    return static_cast<size_t>((i - 1) % MAXIMO_REGISTROS_HISTORICO) + 1;
}

// Reads every record into Historico, which grows by 20 as it fills; returns
// how many the file holds.
int32_t LeeRegistros(const std::string &contenido, Errores &e) {
    int32_t maximo = 100;
    int32_t i = 0;
    LectorCampos campos(contenido);
    LectorRegistro lector(campos, e);
    while (!campos.Fin()) {
        ++i;
        const size_t hueco = Hueco(i);
        if (hueco > static_cast<size_t>(maximo)) {
            Historico.resize(static_cast<size_t>(maximo) + 21);
            maximo += 20;
        }
        Historico[hueco] = RegistroHistorico{};
        lector.Lee(Historico[hueco]);
    }
    return i;
}

} // namespace

std::string TextoErrorHis(int16_t numero, const std::string &unidad) {
    switch (numero) {
    case ERROR_MEMORIA:
        return "HIS ERROR 7 : Insuficiente memoria";
    case ERROR_FICHERO_NO_ENCONTRADO:
        return "No se encuentra el fichero Histórico. Se creará de nuevo la próxima vez que "
               "termine de resolver un puzzle.";
    case ERROR_UNIDAD_NO_PREPARADA:
        return "HIS ERROR 68: Unidad " + unidad + ": no preparada";
    case ERROR_RUTA_NO_ENCONTRADA:
        return "HIS ERROR 76: No existe el fichero Histórico";
    default:
        return "HIS ERROR " + std::to_string(numero);
    }
}

Mensaje MensajeErrorHis(int16_t numero, const std::string &unidad) {
    const std::string texto = TextoErrorHis(numero, unidad);
    return {"Error leyendo el fichero histórico", texto,
            LineasDelMensaje(texto, numero == ERROR_FICHERO_NO_ENCONTRADO ? 2 : 1), 1};
}

void LeeHistorico() {
    ErrorFichero = 0;
    Errores e;
    const std::string contenido = AbreFichero(e);
    int32_t i = 0;
    try {
        Historico.assign(101, RegistroHistorico{});
        if (ErrorFichero == 0) {
            i = LeeRegistros(contenido, e);
        }
    } catch (const std::bad_alloc &) {
        e.Trata(ERROR_MEMORIA);
        i = std::min<int32_t>(i, static_cast<int32_t>(Historico.size()) - 1);
    }
    // Past the top the oldest kept stands in the middle: it goes first.
    int32_t n = i;
    if (i > MAXIMO_REGISTROS_HISTORICO) {
        n = MAXIMO_REGISTROS_HISTORICO;
        std::rotate(Historico.begin() + 1, Historico.begin() + static_cast<long>(Hueco(i + 1)),
                    Historico.begin() + n + 1);
    }
    Historico.resize(static_cast<size_t>(n) + 21);
    NroRegistrosHistorico = static_cast<int16_t>(n);
}
