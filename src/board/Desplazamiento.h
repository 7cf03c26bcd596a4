// The scroll bars move the work area behind the panels and the bars.
#pragma once

void BarraHor_Change();
void BarraVer_Change();
