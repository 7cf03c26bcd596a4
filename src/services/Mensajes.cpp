#include "services/Mensajes.h"

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "raster/Superficie.h"

using namespace PuzzGbl;

namespace {

// The label of the message's text: 365 pixels of 9.75 pt.
constexpr double ANCHO_TEXTO = 365.0;
const Fuente LETRA_TEXTO{"MS Sans Serif", 9.75, false};

// Whether a byte starts a UTF-8 character.
bool EmpiezaCaracter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

} // namespace

void MuestraMensaje(const std::string &titulo, const std::string &texto, int16_t lineas,
                    int16_t botones) {
    MensajeLineas = lineas;
    MensajeBotones = botones;
    if (botones != 1) {
        RespuestaMensaje = FALSO;
    }
    const auto mensaje = Plataforma().Mensaje;
    // With no dialog at hand a message closes as if by a key: every key
    // means "Aceptar" in a two-button message.
    const bool acepta = mensaje != nullptr ? mensaje(titulo, texto) : true;
    if (botones != 1) {
        RespuestaMensaje = acepta ? VERDADERO : FALSO;
    }
}

void MuestraMensaje(const Mensaje &m) {
    MuestraMensaje(m.Titulo, m.Texto, m.Lineas, m.Botones);
}

std::string UneLineas(std::initializer_list<std::string> lineas) {
    std::string texto;
    for (const std::string &linea : lineas) {
        if (&linea != lineas.begin()) {
            texto += NuevaLinea;
        }
        texto += linea;
    }
    return texto;
}

std::string ConBlanco(int64_t n) {
    std::string texto(n < 0 ? "" : " ");
    texto += std::to_string(n);
    return texto;
}

std::string LineaQueCabe(const std::string &linea) {
    Rotulador *r = RotuladorActual();
    if (r == nullptr || r->Ancho(LETRA_TEXTO, linea) <= ANCHO_TEXTO) {
        return linea;
    }
    // Characters go from the middle, the start's and the end's in turn.
    std::string inicio = linea.substr(0, linea.size() / 2);
    std::string fin = linea.substr(linea.size() / 2);
    while (!fin.empty() && !EmpiezaCaracter(fin.front())) {
        inicio += fin.front();
        fin.erase(fin.begin());
    }
    bool delInicio = true;
    std::string corta = inicio + "…" + fin;
    while (r->Ancho(LETRA_TEXTO, corta) > ANCHO_TEXTO && !(inicio.empty() && fin.empty())) {
        if ((delInicio && !inicio.empty()) || fin.empty()) {
            while (!inicio.empty() && !EmpiezaCaracter(inicio.back())) {
                inicio.pop_back();
            }
            inicio.pop_back();
        } else {
            do {
                fin.erase(fin.begin());
            } while (!fin.empty() && !EmpiezaCaracter(fin.front()));
        }
        delInicio = !delInicio;
        corta = inicio + "…" + fin;
    }
    return corta;
}
