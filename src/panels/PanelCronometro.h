// The chronometer panel: the tick, its two keys and its drag.
//
// Pic_Cronome is a top-level control: its Left and Top are screen
// positions. X and Y of its mouse events are pixels of the panel.
#pragma once

#include <cstdint>

// The tick of Timer1, once a second: a running clock adds a second and
// prints the time in the field of the face.
void Timer1_Timer();

// On the green key: start; on the red key: stop; elsewhere: a drag begins.
// Any mouse button.
void Pic_Cronome_MouseDown(int16_t boton, int16_t shift, float x, float y);
// With the left button, the frame of the drag follows; otherwise the
// pointer tells what a press would do there.
void Pic_Cronome_MouseMove(int16_t boton, int16_t shift, float x, float y);
// The end of a drag: the panel moves to the frame.
void Pic_Cronome_MouseUp(int16_t boton, int16_t shift, float x, float y);
