// Drawing helpers of the sample pictures: textures made of noise, skies,
// bricks, stones, foliage and grain, all from fixed seeds.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cstdint>

// A tile of `base` modulated by fractal noise (amplitude in levels, scale in
// pixels); used as a brush so that no filled area is flat.
QImage TexturaRuido(int ancho, int alto, const QColor &base, int amplitud, double escala,
                    uint32_t semilla);
QBrush BrochaRuido(const QColor &base, int amplitud, double escala, uint32_t semilla);

// Fills `zona` with a brush of noise.
void RellenaRuido(QPainter &p, const QPainterPath &zona, const QColor &base, int amplitud,
                  double escala, uint32_t semilla);

// A sky from `arriba` to `abajo` with soft white clouds.
void PintaCielo(QImage &img, const QRect &zona, const QColor &arriba, const QColor &abajo,
                double nubes, uint32_t semilla);

// Bricks or stone blocks in rows, each of its own shade, with mortar.
void PintaLadrillos(QPainter &p, const QRectF &zona, const QColor &base, double ancho, double alto,
                    uint32_t semilla, const QColor &mortero = QColor(200, 195, 185));

// Round cobbles in rows.
void PintaAdoquines(QPainter &p, const QRectF &zona, double lado, uint32_t semilla);

// A cloud of leaves: many small ellipses of varied greens around `centro`.
void PintaFollaje(QPainter &p, const QPointF &centro, double rx, double ry, const QColor &base,
                  int hojas, uint32_t semilla);

// Grass: short strokes of varied greens, with a few flowers.
void PintaHierba(QPainter &p, const QRectF &zona, uint32_t semilla, bool flores = true);

// Roof tiles: overlapping rows of rounded tiles.
void PintaTejas(QPainter &p, const QRectF &zona, const QColor &base, double lado, uint32_t semilla);

// A window with its frame, panes, a reflection, and optional shutters.
void PintaVentana(QPainter &p, const QRectF &r, const QColor &marco, const QColor &postigos,
                  uint32_t semilla);

// A small person seen from afar: head, body, legs, in random clothes.
void PintaPersona(QPainter &p, const QPointF &pies, double alto, uint32_t semilla);

// Per-pixel grain and a slow variation of light: the look of a photograph.
void AplicaGrano(QImage &img, int fuerza, uint32_t semilla);

// A random colour, saturated and bright.
QColor ColorVivo(uint32_t semilla, int indice);
