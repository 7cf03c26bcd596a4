// Golden checksums of the cut: for one generated picture, the pixels of the
// picture with its cut lines, the figures' mask and the templates after each
// cut. Any change to a drawing primitive that moves a single pixel changes
// them; if such a change is meant, look at the cuts (tools/tablero) and
// write the new values here.
#include "cutting/Corte.h"
#include "motor_comun.h"

using namespace PuzzGbl;

struct HuellasCorte {
    int16_t tipo;
    uint64_t bitmap, mascara, temporal;
};

class Huellas : public Motor, public ::testing::WithParamInterface<HuellasCorte> {};

TEST_P(Huellas, DelCorte) {
    const HuellasCorte h = GetParam();
    PreparaJuego(8, h.tipo, 643, 482);
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    const uint64_t bitmap = Huella(teselari.Pic_Bitmap);
    const uint64_t mascara = Huella(teselari.Pic_Mascara);
    const uint64_t temporal = h.tipo == 1 ? Huella(teselari.Pic_Temporal) : 0;
    EXPECT_EQ(bitmap, h.bitmap) << std::hex << bitmap;
    EXPECT_EQ(mascara, h.mascara) << std::hex << mascara;
    EXPECT_EQ(temporal, h.temporal) << std::hex << temporal;
}

INSTANTIATE_TEST_SUITE_P(
    Cortes, Huellas,
    ::testing::Values(HuellasCorte{0, 0xe1c58ea3f1392708ull, 0xbbf7d63f16d6674eull, 0},
                      HuellasCorte{1, 0xe13b4d27227f9ab5ull, 0xbbf7d63f16d6674eull,
                                   0x0f8f0b274a5901fcull},
                      HuellasCorte{2, 0x7d9c16125e28394bull, 0x4be1b43b2780a74eull, 0},
                      HuellasCorte{3, 0x31200c0f51178bccull, 0x04c4f742cf2fe74eull, 0},
                      HuellasCorte{4, 0xfeee5ce11eaa21fdull, 0x9f97c3cb38c2a74eull, 0},
                      HuellasCorte{5, 0xbe28c359017a06dcull, 0x009a938c729e274eull, 0}));
