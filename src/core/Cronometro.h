// The keys of the chronometer panel.
#pragma once

// The clock counts; the green key looks pushed in.
void ArrancaCronometro();

// The clock stops; the red key looks pushed in.
void ParaCronometro();
