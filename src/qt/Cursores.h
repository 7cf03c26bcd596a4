// Pointers by number, and the four hands by name, as Qt cursors.
#pragma once

#include <QCursor>
#include <QString>
#include <cstdint>
#include <string>

// The hot spot of the four hands: the tip of the index finger.
constexpr int HAND_PUNTO_X = 12;
constexpr int HAND_PUNTO_Y = 1;

// The resource path of a hand by its name, any case ("ManoIndice" ->
// ":/teselari/cursores/manoindice.png").
QString RutaCursor(const std::string &nombre);

// The cursor of a control: 0 arrow, 11 hourglass, 12 no entry, 15 four
// arrows, 99 the hand named by `icono`. A number the game does not use, or a
// hand whose image is missing from the resources, gives the arrow.
QCursor CursorDePuntero(int16_t puntero, const std::string &icono);

// The pointer of the whole screen: 11 puts the hourglass over every window
// (an override cursor), any other number takes it away. Repeating a number
// changes nothing.
void AplicaPunteroPantalla(int16_t puntero);
