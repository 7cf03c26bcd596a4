// No picture size from 1 x 1 to 1024 x 768 and no grid the settings allow
// harms the engine: the cut, the deal, every mask, a lift and a move run to
// their end (the sanitizer build proves nothing is read out of bounds).
#include "board/Arrastre.h"
#include "board/Render.h"
#include "cutting/Corte.h"
#include "motor_comun.h"

using namespace PuzzGbl;

struct CasoTamano {
    int32_t ancho, alto;
};

class TamanosExtremos : public Motor, public ::testing::WithParamInterface<CasoTamano> {};

TEST_P(TamanosExtremos, TodosLosCortesYRejillas) {
    const CasoTamano c = GetParam();
    for (int16_t tipo = 0; tipo <= 5; ++tipo) {
        for (const int16_t lado : std::initializer_list<int16_t>{3, 7, 20}) {
            PreparaJuego(lado, tipo, c.ancho, c.alto, 800, 600);
            PreparaBitmap();
            ASSERT_EQ(static_cast<int32_t>(Piezas.size()), NroPiezas + 1);
            for (int16_t i = 1; i <= NroPiezas; ++i) {
                EnmascaraPieza(i);
            }
            PiezaPrioritaria(NroPiezas);
            if (TipoPieza != 0) {
                EnmascaraPieza(1);
            }
            LevantaPieza(Piezas[OrdenPiezas[1]].X, Piezas[OrdenPiezas[1]].Y);
            // Far off the board in every direction, then back.
            for (double d : {-5000.0, 5000.0, 0.0}) {
                MuevePieza(PulsacionX + d, PulsacionY - d);
            }
            ActualizaBSInfo();
            RestauraBitmap();
            EXPECT_LE(PiezasColocadas, NroPiezas);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Imagenes, TamanosExtremos,
                         ::testing::Values(CasoTamano{1, 1}, CasoTamano{2, 3}, CasoTamano{7, 5},
                                           CasoTamano{3, 768}, CasoTamano{1024, 4},
                                           CasoTamano{61, 59}, CasoTamano{1024, 768}),
                         [](const ::testing::TestParamInfo<CasoTamano> &i) {
                             return std::to_string(i.param.ancho) + "x" +
                                    std::to_string(i.param.alto);
                         });
