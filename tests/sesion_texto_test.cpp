// The text form of the initialisation file: code page and fields.
#include <gtest/gtest.h>

#include "core/TextoIni.h"

namespace {

struct Conversion {
    const char *utf8;
    const char *cp1252;
};

TEST(TextoIni, LoQueNoCabeEnLaPaginaEsInterrogacion) {
    const Conversion casos[] = {
        {"日本", "??"},          // outside the code page
        {"\xC3", "?"},           // a sequence cut short
        {"a\377b", "a?b"},       // not UTF-8 at all
        {"\xE2\x82", "??"},      // two bytes of a three-byte sequence
        {"\xC0\xAF", "??"},      // an overlong form
        {"\xED\xA0\x80", "???"}, // a surrogate
        {"\xC2\x80", "?"},       // U+0080: the page puts the euro there
    };
    for (const Conversion &c : casos) {
        EXPECT_EQ(AWindows1252(c.utf8), c.cp1252);
    }
}

// Every byte, NUL too (the untyped player's name), read from the code page
// and written back.
TEST(TextoIni, CadaByteVuelveIgual) {
    std::string todos;
    for (int b = 0; b < 256; ++b) {
        todos += static_cast<char>(b);
    }
    EXPECT_EQ(AWindows1252(DeWindows1252(todos)), todos);
}

// A string goes in Windows-1252 when the code page has it, byte for byte,
// and as UTF-8 otherwise; either way it comes back whole.
TEST(TextoIni, CadenasDeIdaYVuelta) {
    const Conversion casos[] = {
        {"€ “Œ” ÿ … ‰ Ÿ ž ¡¿Ó", "\x80 \x93\x8C\x94 \xFF \x85 \x89 \x9F \x9E \xA1\xBF\xD3"},
        {"Ã©", nullptr}, // its Windows-1252 bytes would read as UTF-8
        {"/home/Фото/кот.jpg", nullptr},
        {"/fotos/🐈 y año.jpg", nullptr},
    };
    for (const Conversion &c : casos) {
        const std::string campo = CampoCadena(c.utf8);
        EXPECT_EQ(campo, '"' + std::string(c.cp1252 != nullptr ? c.cp1252 : c.utf8) + '"');
        const auto leidos = DivideCampos(LineaIni({campo, "1"}));
        ASSERT_EQ(leidos.size(), 2u);
        EXPECT_EQ(LeeCadena(leidos[0]), c.utf8);
    }
}

TEST(TextoIni, DivideLineasConCrLfOLf) {
    EXPECT_EQ(DivideLineas("a\r\nb\r\n"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(DivideLineas("a\nb"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(DivideLineas("a\r\n\r\nb\r\n"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_TRUE(DivideLineas("").empty());
}

TEST(TextoIni, DivideCamposRespetaLasComillas) {
    const auto c = DivideCampos("\"a,b\",  12 ,#TRUE#,\"\",\"x\"basura,-3");
    const std::vector<std::string> textos = {"a,b", "12", "#TRUE#", "", "x", "-3"};
    ASSERT_EQ(c.size(), textos.size());
    for (size_t i = 0; i < c.size(); ++i) {
        EXPECT_EQ(c[i].texto, textos[i]) << i;
        EXPECT_EQ(c[i].entrecomillado, i == 0 || i == 3 || i == 4) << i;
    }
    EXPECT_TRUE(DivideCampos("").empty());
    const auto abierta = DivideCampos("\"sin cerrar,1");
    ASSERT_EQ(abierta.size(), 1u);
    EXPECT_FALSE(abierta[0].cerrado);
    EXPECT_FALSE(LeeCadena(abierta[0]).has_value());
    EXPECT_EQ(DivideCampos("1,,2").size(), 3u);
    EXPECT_EQ(DivideCampos("1,").size(), 2u);
}

struct LecturaNumero {
    const char *texto;
    int64_t minimo, maximo;
    std::optional<int64_t> esperado;
};

TEST(TextoIni, LeeNumerosDeSuAnchura) {
    const LecturaNumero casos[] = {
        {"-1", -32768, 32767, -1},
        {"32767", -32768, 32767, 32767},
        {"32768", -32768, 32767, std::nullopt}, // too large for 16 bits
        {"-32769", -32768, 32767, std::nullopt},
        {"", -32768, 32767, std::nullopt},
        {"12a", -32768, 32767, std::nullopt},
        {"+5", -32768, 32767, std::nullopt},
        {"99999999999999999999999", INT32_MIN, INT32_MAX, std::nullopt},
    };
    for (const LecturaNumero &c : casos) {
        EXPECT_EQ(LeeNumero(CampoIni{c.texto}, c.minimo, c.maximo), c.esperado) << c.texto;
    }
    // A quoted number is a string.
    EXPECT_FALSE(LeeNumero(CampoIni{"5", true}, 0, 10).has_value());
}

TEST(TextoIni, LeeLogicosYCadenas) {
    EXPECT_EQ(LeeLogico(CampoIni{"#TRUE#"}), true);
    EXPECT_EQ(LeeLogico(CampoIni{"#FALSE#"}), false);
    EXPECT_FALSE(LeeLogico(CampoIni{"-1"}).has_value());
    EXPECT_FALSE(LeeLogico(CampoIni{"#TRUE#", true}).has_value());
    EXPECT_EQ(LeeCadena(CampoIni{"Ca\361a", true}), "Caña");
    EXPECT_EQ(LeeCadena(CampoIni{"sin comillas"}), "sin comillas");
}

} // namespace
