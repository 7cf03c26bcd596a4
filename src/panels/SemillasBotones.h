// Where the shadow of each command's image is seeded when the button is
// pressed: points inside the shadow, in control coordinates of the pressed
// position. Some shadows fall apart into several pieces; each needs a seed.
// The game fills them to draw a button down, and the asset generator draws
// every image so that its shadow holds them.
#pragma once

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

using SemillaSombra = std::pair<int32_t, int32_t>;

// Commands 1..11 (element 0 unused).
inline const std::array<std::vector<SemillaSombra>, 12> &SemillasSombra() {
    static const std::array<std::vector<SemillaSombra>, 12> tabla = {{
        {},
        {{51, 51}},
        {{43, 51}, {44, 17}},
        {{50, 50}},
        {{50, 50}, {19, 19}, {22, 32}},
        {{49, 46}},
        {{51, 51}, {30, 22}, {26, 16}},
        {{21, 51}, {35, 51}, {51, 51}},
        {{23, 23}, {49, 40}, {33, 51}},
        {{51, 51}},
        {{51, 51}},
        {{14, 37}},
    }};
    return tabla;
}
