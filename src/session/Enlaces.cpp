#include "session/Enlaces.h"

#include "board/Barajar.h"
#include "board/Desplazamiento.h"
#include "core/Arriba.h"
#include "dialog/ServiciosDialogo.h"
#include "history/Historico.h"
#include "history/ServiciosHistorico.h"
#include "panels/Comandos.h"
#include "panels/Paneles.h"
#include "session/Sesion.h"

void EnlazaArriba() {
    LlamadasArriba &a = Arriba();
    a.Barajar = Barajar;
    a.BarraHor_Change = BarraHor_Change;
    a.BarraVer_Change = BarraVer_Change;
    a.DibujaBotonesDerecho = DibujaBotonesDerecho;
    a.PulsaBoton = PulsaBoton;
    a.DibuBot = DibuBot;
    a.AnadeHistorico = AnadeHistorico;
    a.AbreDialogoAbrirFic = AbreDialogoAbrirFic;
    a.AbreLibroHistorico = AbreLibroHistorico;
    a.GuardaSesion = GuardaSesion;
}
