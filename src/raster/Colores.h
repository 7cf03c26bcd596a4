// Colour words and the pixel store.
//
// The game's colour words are 0x00BBGGRR. The store of a surface holds
// 0xFFRRGGBB, which a screen presents as it is. Only these two functions
// cross between the forms.
#pragma once

#include <cstdint>

using Color = uint32_t;

constexpr Color COLOR_NEGRO = 0x000000;
constexpr Color COLOR_BLANCO = 0xFFFFFF;
constexpr uint32_t ALFA_OPACO = 0xFF000000u;

// Game colour word (0x00BBGGRR) to stored pixel (0xFFRRGGBB).
constexpr uint32_t APixel(Color c) {
    return ALFA_OPACO | ((c & 0xFFu) << 16) | (c & 0xFF00u) | ((c >> 16) & 0xFFu);
}

// Stored pixel to game colour word.
constexpr Color AColor(uint32_t p) {
    return ((p & 0xFFu) << 16) | (p & 0xFF00u) | ((p >> 16) & 0xFFu);
}

// Builds a game colour word from its parts, as RGB() does.
constexpr Color RGB(uint32_t r, uint32_t g, uint32_t b) {
    return (r & 0xFFu) | ((g & 0xFFu) << 8) | ((b & 0xFFu) << 16);
}
