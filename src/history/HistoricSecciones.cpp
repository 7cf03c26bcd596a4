// Historic: the four sections, their sorted lists and the turning of pages.
//
// The three sorted sections make their order with no sort of their own: a
// record's key is built so that the list's string order is the wanted one,
// and the record's number rides at its end. D = 100 - Dificultad, in single
// precision, so the hardest comes first:
//   by name        Nombre, D "000.000", i "@@@@"
//   by picture     Imagen, D "000.000", i "@@@@"
//   by difficulty  D "000.000", Segundos "000000", i "@@@@"
// Records equal in all of that stand by the text of their number, "   7"
// before "  12". A row gives back its record by the number it carries
// (ItemData), which is the number at the end of its key: a table of more
// than 9 999 records, whose numbers outgrow the four places, or a damaged
// difficulty that widens D, still finds its record.
#include "core/PuzzGbl.h"
#include "history/FormHistoric.h"
#include "history/Formatos.h"

using namespace PuzzGbl;

namespace {

std::string D(const RegistroHistorico &r) {
    return FormatoCeros(static_cast<double>(100.0f - r.Dificultad), 3, 3);
}

std::string Clave(int16_t seccion, int32_t i) {
    const RegistroHistorico &r = Historico[static_cast<size_t>(i)];
    const std::string numero = FormatoArrobas(i, 4);
    switch (seccion) {
    case 2:
        return r.Nombre + D(r) + numero;
    case 3:
        return r.Imagen + D(r) + numero;
    default:
        return D(r) + FormatoCeros(r.Segundos, 6, 0) + numero;
    }
}

} // namespace

// The first spread of a section opens it: its patches, no name box, the
// mark of the section.
void FormHistoric::AbreSeccion(int16_t seccion) {
    PonTapas(seccion);
    Tex_Nombre.Visible = false;
    MarcaLibro = seccion;
}

void FormHistoric::MuestraPorFecha() {
    if (ContadorPagina == 0) {
        AbreSeccion(1);
    }
    Formulario.CajaLlena(100, 20, 159, 319, COLOR_BLANCO);
    PaginasEnBlanco();
    MuestraParches(true);
    for (int16_t medio : {int16_t{0}, int16_t{251}}) {
        ++ContadorPagina;
        if (ContadorPagina <= NroRegistrosHistorico) {
            RegistroPagina = static_cast<int16_t>(NroRegistrosHistorico - ContadorPagina + 1);
            MedioLibro = medio;
            DibujaRegistro();
        }
    }
}

void FormHistoric::LlenaLista(int16_t seccion) {
    ListaOrdenada &lista = seccion == 2 ? Lis_Orden2 : seccion == 3 ? Lis_Orden3 : Lis_Orden4;
    int16_t &llena = seccion == 2   ? ListaNombreLlena
                     : seccion == 3 ? ListaImagenLlena
                                    : ListaTiempoLlena;
    if (llena != FALSO) {
        return;
    }
    for (int32_t i = 1; i <= NroRegistrosHistorico; ++i) {
        lista.AddItem(Clave(seccion, i), i);
    }
    llena = VERDADERO;
}

void FormHistoric::MuestraOrdenada(int16_t seccion) {
    if (ContadorPagina == 0) {
        AbreSeccion(seccion);
        LlenaLista(seccion);
    }
    ListaOrdenada &lista = seccion == 2 ? Lis_Orden2 : seccion == 3 ? Lis_Orden3 : Lis_Orden4;
    PaginasEnBlanco();
    MuestraParches(true);
    for (int16_t medio : {int16_t{0}, int16_t{251}}) {
        ++ContadorPagina;
        if (ContadorPagina <= NroRegistrosHistorico) {
            RegistroPagina = static_cast<int16_t>(lista.ItemData(ContadorPagina - 1));
            MedioLibro = medio;
            DibujaRegistro();
        }
    }
}

void FormHistoric::MuestraPorNombre() {
    MuestraOrdenada(2);
}

void FormHistoric::MuestraPorImagen() {
    MuestraOrdenada(3);
}

void FormHistoric::MuestraPorDificultad() {
    MuestraOrdenada(4);
}

void FormHistoric::MuestraSeccion(int16_t seccion) {
    switch (seccion) {
    case 0:
        MuestraPuzzleActual();
        break;
    case 1:
        MuestraPorFecha();
        break;
    case 2:
        MuestraPorNombre();
        break;
    case 3:
        MuestraPorImagen();
        break;
    default:
        MuestraPorDificultad();
        break;
    }
}

// Forward: the next spread of the section, past its last one the first
// spread of the next section; the last section stops at its end.
void FormHistoric::PaginaSiguiente() {
    if (MarcaLibro == 0) {
        ContadorPagina = 0;
        MuestraPorFecha();
    } else if (ContadorPagina < NroRegistrosHistorico) {
        MuestraSeccion(MarcaLibro);
    } else if (MarcaLibro < 4) {
        ContadorPagina = 0;
        MuestraSeccion(static_cast<int16_t>(MarcaLibro + 1));
    }
}

// Back: the spread before; from the first spread of a section, the first
// spread of the section before it (or the first page).
void FormHistoric::PaginaAnterior() {
    if (MarcaLibro == 0) {
        return;
    }
    if (ContadorPagina > 2) {
        ContadorPagina = static_cast<int16_t>(ContadorPagina - 4);
        MuestraSeccion(MarcaLibro);
    } else {
        ContadorPagina = 0;
        MuestraSeccion(static_cast<int16_t>(MarcaLibro - 1));
    }
}
