// The numbers and texts of the errors met opening the initialisation file.
#include <gtest/gtest.h>

#include <cerrno>

#include "core/ErroresFichero.h"

namespace {

TEST(ErroresFichero, CadaFalloTieneSuNumero) {
    struct Caso {
        int e;
        int16_t carpeta, fichero;
    };
    const Caso casos[] = {
        {ENOENT, 76, 53}, {ENOTDIR, 76, 76},   {ENOMEM, 7, 7},   {EIO, 68, 68},
        {ENODEV, 68, 68}, {ENOMEDIUM, 68, 68}, {EACCES, 75, 75}, {EISDIR, 75, 75},
    };
    for (const Caso &c : casos) {
        EXPECT_EQ(ErrorDeCarpeta(c.e), c.carpeta) << c.e;
        EXPECT_EQ(ErrorDeFichero(c.e), c.fichero) << c.e;
    }
}

// The texts that the saved game's restore shows (53, 75, 76) are checked
// there.
TEST(ErroresFichero, TextoPorNumero) {
    const std::pair<int16_t, const char *> casos[] = {
        {7, "INI ERROR 7 : Insuficiente memoria"},
        {68, "INI ERROR 68: Unidad /media/cdrom: no preparada"},
        {62, "INI ERROR 62"},
    };
    for (const auto &[numero, texto] : casos) {
        EXPECT_EQ(TextoErrorIni(numero, "/media/cdrom"), texto) << numero;
    }
}

} // namespace
