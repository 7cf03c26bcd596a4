// Raster operations between surfaces: blits, stretch, flood fills, clip.
//
// A blit is clipped once, against the source, the destination and the
// destination's clip region, and then runs over whole rows. Pixels that the
// source rectangle has outside its surface are not read: the destination
// keeps what it had there (the game hides such pixels by its masks).
// Raster operations act on the 24 colour bits only.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "raster/Superficie.h"

constexpr uint32_t SRCCOPY = 0xCC0020;
constexpr uint32_t SRCAND = 0x8800C6;
constexpr uint32_t SRCINVERT = 0x660046;
constexpr uint32_t NOTSRCCOPY = 0x330008;
constexpr uint32_t DSTANDNOTSRC = 0x220B24; // destination AND NOT source

constexpr int COLORONCOLOR = 3;

constexpr uint32_t FLOODFILLBORDER = 0;
constexpr uint32_t FLOODFILLSURFACE = 1;

// Copies w x h pixels from (xs, ys) of origen to (x, y) of destino, combined
// by the raster operation. origen may be destino itself (overlapping copies
// behave as if the source were read first). Returns non-zero on success,
// 0 for an unknown raster operation.
int BitBlt(Superficie &destino, int32_t x, int32_t y, int32_t w, int32_t h,
           const Superficie &origen, int32_t xs, int32_t ys, uint32_t rop);

// The mode is kept on the surface's side only for the record: the one mode
// the game uses, COLORONCOLOR, is the only one there is.
int SetStretchBltMode(Superficie &s, int modo);

// Scales the rectangle (xs, ys, ws, hs) of origen onto (x, y, w, h) of
// destino by the nearest pixel: whole pixels are dropped or repeated, never
// blended. Returns non-zero on success.
int StretchBlt(Superficie &destino, int32_t x, int32_t y, int32_t w, int32_t h,
               const Superficie &origen, int32_t xs, int32_t ys, int32_t ws, int32_t hs,
               uint32_t rop);

// From the seed, paints every 4-connected pixel that is not the boundary
// colour with the surface's FillColor. A seed on the boundary colour, or
// outside the surface, paints nothing and returns 0.
int FloodFill(Superficie &s, int32_t x, int32_t y, Color limite);

// FLOODFILLBORDER: as FloodFill. FLOODFILLSURFACE: paints the 4-connected
// area of the colour `color` that holds the seed with FillColor; a seed of
// another colour paints nothing and returns 0.
int ExtFloodFill(Superficie &s, int32_t x, int32_t y, Color color, uint32_t tipo);

// Paints with FillColor every pixel of the colour `color` that no
// 4-connected path through that colour joins to the surface's border or to
// one of the points `abiertos`: the holes that closed outlines leave in an
// area, but for the bays that the points keep. Returns how many it painted.
int64_t RellenaEncerrados(Superficie &s, Color color,
                          const std::vector<std::pair<int32_t, int32_t>> &abiertos = {});

// Selects a copy of the region as the clip region of the surface, or none.
int SelectClipRgn(Superficie &s, const Region *region);
