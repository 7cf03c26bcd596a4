// The picture of a restored game: from its file, through Pic_W, into
// Pic_Origin at the zoom.
#pragma once

#include <cstdint>

// Whether a picture of w x h pixels (after its zoom) can be cut: 320..1024
// by 240..768, the limits included.
bool TamanoPermitido(int64_t ancho, int64_t alto);

// A side of a picture at the zoom: the integer part of lado x zoom / 100.
int64_t ConZoom(int64_t lado, int16_t zoom);

// The size of the picture in Pic_W at the zoom, each side's integer part.
int64_t AnchoConZoom(int16_t zoom);
int64_t AltoConZoom(int16_t zoom);

// Scales the whole of Pic_W into Pic_Origin, sized w x h, nearest pixel;
// then drops the picture at its full size from Pic_W.
void PasaImagenAOrigen(int32_t ancho, int32_t alto);

// Pic_Origin as a blank 320 x 240 surface, its empty image as its picture.
void DejaOrigenEnBlanco();

// When no customisation dialog can be shown (a platform without one), a
// start without a usable picture still gives a game: the first sample
// picture of the program's folder that loads and fits is taken, at zoom 100,
// with the settings in force. Does nothing when a usable picture already stands in Pic_Origin;
// leaves ImagenValida false when no sample loads.
void CargaImagenDeMuestra();
