#include "qt/Manejadores.h"

#include "board/Raton.h"
#include "panels/BotonesRaton.h"
#include "panels/PanelCronometro.h"
#include "panels/PanelModelo.h"
#include "qt/VentanaTeselari.h"
#include "qt/VistaSuperficie.h"

namespace {

using Manejador = void (*)(int16_t, int16_t, float, float);
using ManejadorIndice = void (*)(int16_t, int16_t, int16_t, float, float);

// A handler of one control, followed by the mirror of the state it left.
VistaSuperficie::Manejador Llama(VentanaTeselari &v, Manejador m) {
    return [&v, m](int16_t boton, int16_t shift, float x, float y) {
        v.Atiende([&] { m(boton, shift, x, y); });
    };
}

// A handler of a control array, with the index of the control.
VistaSuperficie::Manejador Llama(VentanaTeselari &v, ManejadorIndice m, int16_t indice) {
    return [&v, m, indice](int16_t boton, int16_t shift, float x, float y) {
        v.Atiende([&] { m(indice, boton, shift, x, y); });
    };
}

// The three mouse handlers of a control that is pressed, moved and released.
void ConectaRaton(VentanaTeselari &v, VistaSuperficie &vista, Manejador pulsa, Manejador mueve,
                  Manejador suelta) {
    vista.AlPulsar = Llama(v, pulsa);
    vista.AlMover = Llama(v, mueve);
    vista.AlSoltar = Llama(v, suelta);
}

} // namespace

void ConectaManejadores(VentanaTeselari &v) {
    for (int16_t i = 1; i <= 11; ++i) {
        v.Pic_BotonSiempre[i]->AlPulsar = Llama(v, Pic_BotonSiempre_MouseDown, i);
        v.Pic_BotonSiempre[i]->AlMover = Llama(v, Pic_BotonSiempre_MouseMove, i);
        v.Pic_BotonDerecho[i]->AlPulsar = Llama(v, Pic_BotonDerecho_MouseDown, i);
        v.Pic_BotonDerecho[i]->AlMover = Llama(v, Pic_BotonDerecho_MouseMove, i);
    }
    v.Pic_BotonesSiempre->AlMover = Llama(v, Pic_BotonesSiempre_MouseMove);
    v.Pic_BotonesDerecho->AlMover = Llama(v, Pic_BotonesDerecho_MouseMove);
    v.Pic_BSInfo->AlMover = Llama(v, Pic_BSInfo_MouseMove);

    ConectaRaton(v, *v.Pic_Trabajo, Pic_Trabajo_MouseDown, Pic_Trabajo_MouseMove,
                 Pic_Trabajo_MouseUp);
    ConectaRaton(v, *v.Pic_Cronome, Pic_Cronome_MouseDown, Pic_Cronome_MouseMove,
                 Pic_Cronome_MouseUp);
    ConectaRaton(v, *v.Pic_Muestra, Pic_Muestra_MouseDown, Pic_Muestra_MouseMove,
                 Pic_Muestra_MouseUp);

    QObject::connect(&v.Timer1, &QTimer::timeout, &v, [&v] { v.Atiende(Timer1_Timer); });
}
