// The help book from the game's side: a number the book doesn't know leads
// to the contents. Command 1 is the commands' test.
#include <gtest/gtest.h>

#include "services/Ayuda.h"

namespace {

// 0 and every number the book doesn't know lead to the contents.
TEST(TemasDesconocidos, LlevanAlContenido) {
    for (const int16_t tema :
         std::initializer_list<int16_t>{0, -1, 1, 1119, 1121, 1229, 1243, 1601, 1604, 32767}) {
        EXPECT_EQ(DestinoAyuda(tema), "indice.html") << tema;
    }
}

} // namespace
