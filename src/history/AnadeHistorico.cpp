// Entering a finished game in the history book and in TESEL32.HIS.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>

#include "core/EscrituraSegura.h"
#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"

using namespace PuzzGbl;

namespace {

FechaHora FechaHoraLocal() {
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
    localtime_r(&ahora, &local);
    char fecha[32], hora[32];
    std::snprintf(fecha, sizeof fecha, "%02d/%02d/%04d", local.tm_mday, local.tm_mon + 1,
                  local.tm_year + 1900);
    std::snprintf(hora, sizeof hora, "%02d:%02d:%02d", local.tm_hour, local.tm_min, local.tm_sec);
    return {fecha, hora};
}

// A string of the game as a field of the file: a double quote or a line
// break would end the field or the record early, and a NUL (a name never
// typed) is no text at all.
std::string SinSeparadores(std::string texto) {
    for (char &c : texto) {
        if (c == '"') {
            c = '\'';
        } else if (c == '\r' || c == '\n' || c == '\0') {
            c = ' ';
        }
    }
    return texto;
}

RegistroHistorico RegistroDeLaPartida() {
    const auto calendario = Plataforma().Calendario;
    const FechaHora momento = calendario != nullptr ? calendario() : FechaHoraLocal();
    RegistroHistorico r;
    r.Fecha = CadenaFija(momento.Fecha, 10);
    r.Hora = CadenaFija(momento.Hora, 8);
    r.Imagen = CadenaFija(SinSeparadores(NombreImagen), 12);
    r.AnchoPuzzle = AnchoPuzzle;
    r.AltoPuzzle = AltoPuzzle;
    r.PiezasPorLado = PiezasPorLado;
    r.TipoPieza = TipoPieza;
    r.NroPiezas = NroPiezas;
    r.AnchoPieza = AnchoPieza;
    r.AltoPieza = AltoPieza;
    r.Dificultad = Dificultad;
    r.Segundos = SegundosCronometro;
    r.FactorPegado = FactorPegado;
    r.Nombre = CadenaFija(SinSeparadores(NombreJugador), 9);
    return r;
}

// The record at the end of the table, which grows by 20 when it is full;
// with the table at its top the oldest record leaves it (not the file).
void AnadeALaTabla(const RegistroHistorico &r) {
    if (Historico.empty()) {
        Historico.resize(1);
    }
    if (NroRegistrosHistorico >= MAXIMO_REGISTROS_HISTORICO) {
        std::move(Historico.begin() + 2, Historico.begin() + NroRegistrosHistorico + 1,
                  Historico.begin() + 1);
    } else {
        ++NroRegistrosHistorico;
        if (static_cast<size_t>(NroRegistrosHistorico) >= Historico.size()) {
            Historico.resize(Historico.size() + 20);
        }
    }
    Historico[static_cast<size_t>(NroRegistrosHistorico)] = r;
}

// The file's bytes as they are; a missing file is empty. False when the
// file is there but can't be read whole: it must not then be replaced.
bool LeeFicheroEntero(const char *nombre, std::string &contenido) {
    std::FILE *f = std::fopen(nombre, "rb");
    if (f == nullptr) {
        return errno == ENOENT;
    }
    struct stat datos {};
    bool bien = ::fstat(::fileno(f), &datos) == 0 && S_ISREG(datos.st_mode);
    if (bien) {
        contenido.resize(static_cast<size_t>(datos.st_size));
        bien = std::fread(contenido.data(), 1, contenido.size(), f) == contenido.size() &&
               std::fgetc(f) == EOF && !std::ferror(f);
    }
    std::fclose(f);
    return bien;
}

// The old content with the lines after it, each on a line of its own and
// before any Ctrl-Z that would hide them from a reader.
bool EscribeLineas(const std::string &lineas) {
    if (::chdir(DirectorioTrabajo.c_str()) != 0) {
        return false;
    }
    std::string contenido;
    if (!LeeFicheroEntero("TESEL32.HIS", contenido)) {
        return false;
    }
    while (!contenido.empty() && contenido.back() == '\x1A') {
        contenido.pop_back();
    }
    if (!contenido.empty() && contenido.back() != '\n' && contenido.back() != '\r') {
        contenido += "\r\n";
    }
    return EscribeSeguro("TESEL32.HIS", contenido + lineas);
}

} // namespace

void AnadeHistorico() {
    const RegistroHistorico r = RegistroDeLaPartida();
    AnadeALaTabla(r);
    const std::string lineas = LineasHistoricoPendientes + LineaHistorico(r);
    if (EscribeLineas(lineas)) {
        LineasHistoricoPendientes.clear();
    } else {
        LineasHistoricoPendientes = lineas;
    }
}
