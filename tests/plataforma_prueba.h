// Test doubles of the platform: one service of the installed table
// replaced, the rest kept.
#pragma once

#include <type_traits>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"

template <typename T>
void PonServicio(T ServiciosPlataforma::*campo, std::type_identity_t<T> valor) {
    ServiciosPlataforma s = Plataforma();
    s.*campo = valor;
    InstalaPlataforma(s);
}

// The desktop's four (messages, sounds, events, the end) replaced together.
inline void PonEscritorio(const ServiciosPlataforma &e) {
    ServiciosPlataforma s = Plataforma();
    s.Mensaje = e.Mensaje;
    s.Sonido = e.Sonido;
    s.Eventos = e.Eventos;
    s.Termina = e.Termina;
    InstalaPlataforma(s);
}

// The first instant's state again, on the same platform: a test's doubles
// outlive the new game it sets up.
inline void RestauraSobreLaPlataforma() {
    const ServiciosPlataforma s = Plataforma();
    RestauraValoresIniciales();
    InstalaPlataforma(s);
}
