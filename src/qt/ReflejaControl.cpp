#include "qt/ReflejaControl.h"

#include <QWidget>

#include "core/Controles.h"
#include "qt/VistaSuperficie.h"

void ReflejaLugar(QWidget *w, const ControlConTamano &c) {
    const int dentro = BordeDe(w->parentWidget());
    const QRect lugar(c.Left + dentro, c.Top + dentro, c.Width, c.Height);
    if (w->geometry() != lugar) {
        w->setGeometry(lugar);
    }
    if (w->isHidden() == c.Visible) {
        w->setVisible(c.Visible);
    }
}
