// The place and visibility of a control mirrored onto its widget, for every
// form's window.
#pragma once

class QWidget;
struct ControlConTamano;

// Puts the widget where the control stands (inside the frame of a framed
// parent), at its size, shown or hidden as it says.
void ReflejaLugar(QWidget *w, const ControlConTamano &c);
