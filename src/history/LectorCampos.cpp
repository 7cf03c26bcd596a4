#include "history/LectorCampos.h"

namespace {

constexpr char CONTROL_Z = '\x1A';

bool EsBlanco(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

LectorCampos::LectorCampos(std::string_view contenido)
    : texto_(contenido.substr(0, contenido.find(CONTROL_Z))) {}

bool LectorCampos::FinDeLinea(size_t i) const {
    return texto_[i] == '\r' || texto_[i] == '\n';
}

bool LectorCampos::Fin() {
    while (i_ < texto_.size() && (EsBlanco(texto_[i_]) || FinDeLinea(i_))) {
        ++i_;
    }
    return i_ >= texto_.size();
}

void LectorCampos::SaltaSeparador() {
    if (i_ >= texto_.size()) {
        return;
    }
    if (texto_[i_] == ',') {
        ++i_;
    } else if (texto_[i_] == '\r') {
        ++i_;
        if (i_ < texto_.size() && texto_[i_] == '\n') {
            ++i_;
        }
    } else if (texto_[i_] == '\n') {
        ++i_;
    }
}

bool LectorCampos::Siguiente(CampoIni &campo) {
    while (i_ < texto_.size() && EsBlanco(texto_[i_])) {
        ++i_;
    }
    if (i_ >= texto_.size()) {
        return false;
    }
    campo = CampoIni{};
    size_t fin = i_;
    if (texto_[i_] == '"') {
        campo.entrecomillado = true;
        size_t cierre = i_ + 1;
        while (cierre < texto_.size() && texto_[cierre] != '"' && !FinDeLinea(cierre)) {
            ++cierre;
        }
        campo.cerrado = cierre < texto_.size() && texto_[cierre] == '"';
        campo.texto = std::string(texto_.substr(i_ + 1, cierre - i_ - 1));
        fin = campo.cerrado ? cierre + 1 : cierre;
        // What stands between the closing quote and the separator is dropped.
        while (fin < texto_.size() && texto_[fin] != ',' && !FinDeLinea(fin)) {
            ++fin;
        }
    } else {
        while (fin < texto_.size() && texto_[fin] != ',' && !FinDeLinea(fin)) {
            ++fin;
        }
        size_t ultimo = fin;
        while (ultimo > i_ && EsBlanco(texto_[ultimo - 1])) {
            --ultimo;
        }
        campo.texto = std::string(texto_.substr(i_, ultimo - i_));
    }
    i_ = fin;
    SaltaSeparador();
    return true;
}
