// The drag of a floating panel (chronometer or model) over the board.
//
// The panel itself stays where it is while the mouse is held: only a frame
// of its size, inverted on Pic_Trabajo, follows the mouse, in board
// coordinates. PanelX and PanelY hold the frame's corner; the drop moves
// the panel there. There is one mouse, so one drag at a time.
#pragma once

#include <cstdint>

// Starts a drag of a panel of w x h whose frame begins at (x, y) of the
// board: the board draws inverted from now on.
void EmpiezaArrastrePanel(int32_t x, int32_t y, int32_t w, int32_t h);

// Moves the frame towards (nx, ny). Each axis that would leave the visible
// part of the board keeps its last position; the other still moves.
void MueveMarcoPanel(int32_t nx, int32_t ny);

// Ends the drag: the frame goes away, and the corner where the panel is to
// stand is left in PanelX, PanelY, pushed left of the button panel when it
// would stand beside it.
void TerminaArrastrePanel();
