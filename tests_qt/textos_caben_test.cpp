// Every message of the game, with the longest values it can carry, laid out
// in the real label of the message form: it keeps to the lines its caller
// makes room for, in the face that stands for "MS Sans Serif".
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "board/Raton.h"
#include "core/PuzzGbl.h"
#include "dialog/TextosDialogo.h"
#include "history/Historico.h"
#include "panels/Ordenes.h"
#include "plataforma_prueba.h"
#include "qt/FormMensajes.h"
#include "qt/RotuladorQt.h"
#include "session/TextosSesion.h"

using namespace PuzzGbl;

namespace {

// A path longer than a line, with blanks and without.
std::string RutaLarga(const std::string &carpeta) {
    std::string ruta = "/home/jugador";
    for (int i = 0; i < 6; ++i) {
        ruta += "/" + carpeta;
    }
    return ruta + "/imagen de fondo para el puzzle.jpg";
}

std::vector<Mensaje> TodosLosMensajes() {
    std::vector<Mensaje> m = {MensajeSalida(), MensajePuzzleResuelto(), MensajeLimiteZoom(),
                              MensajeNombreNoEscribible()};
    for (int64_t lado : {1023, 99999}) {
        m.push_back(MensajeImagenRechazada(lado, lado));
        m.push_back(MensajeImagenNoValida(lado, lado));
        m.push_back(MensajeFueraDeLimites(lado, lado));
    }
    for (const char *carpeta : {"Fotografías del viaje", "FotografíasDelViajeDeVerano", "Фото"}) {
        m.push_back(MensajeImagenPerdida(RutaLarga(carpeta)));
    }
    for (const int16_t numero : std::initializer_list<int16_t>{7, 53, 68, 76, 32767}) {
        m.push_back(MensajeErrorIni(numero, "/media/jugador/DISCO EXTERNO DE FOTOGRAFÍAS"));
        m.push_back(MensajeErrorHis(numero, "/media/jugador/DISCO EXTERNO DE FOTOGRAFÍAS"));
    }
    return m;
}

TEST(TextosCaben, CadaMensajeCabeEnLasLineasDeSuLlamada) {
    RestauraValoresIniciales();
    LlenaTablas();
    RotuladorQt rotulador;
    PonServicio(&ServiciosPlataforma::Texto, &rotulador);
    for (const Mensaje &m : TodosLosMensajes()) {
        MensajeLineas = m.Lineas;
        MensajeBotones = m.Botones;
        FormMensajes f(m.Titulo, m.Texto);
        const QFont letra = f.Tex_Mensaje->font();
        EXPECT_EQ(QFontInfo(letra).family().toStdString(), "Liberation Sans");
        const int alto = QFontMetrics(letra).lineSpacing();
        ASSERT_LE(alto, 16);
        // The label's height for its width: whole lines, and a pixel or two
        // of the face's leading.
        const long lineas = std::lround(f.Tex_Mensaje->heightForWidth(365) / double(alto));
        EXPECT_LE(lineas, m.Lineas) << m.Texto;
        const QFontMetrics titulo(f.Tex_Titulo->font());
        EXPECT_LE(titulo.horizontalAdvance(f.Tex_Titulo->text()), 365) << m.Titulo;
        EXPECT_LE(titulo.height(), 22);
    }
    PonServicio(&ServiciosPlataforma::Texto, nullptr);
}

} // namespace
