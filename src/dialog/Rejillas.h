// Which grids a picture allows, and which of them the present grid becomes.
#pragma once

#include <cstdint>
#include <vector>

// The grids n = 3..20 whose cells, W / n by H / n with the remainder
// dropped, are 24 to 140 pixels on both sides, in ascending n. They always
// form one run without gaps.
std::vector<int16_t> RejillasOfrecidas(int32_t ancho, int32_t alto);

// The position in `ofrecidas` of the grid nearest to `actual`; of two
// equally near the larger wins. -1 when nothing is offered.
int32_t RejillaCercana(const std::vector<int16_t> &ofrecidas, int16_t actual);
