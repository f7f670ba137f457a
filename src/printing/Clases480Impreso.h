#pragma once

#include "printing/ValoresImpreso.h"

namespace impreso {

class Lienzo;

/// The table of insurance classes of the model 480 form: frames and labels, then its amounts.
void dibujarClases(Lienzo &lienzo, const ValoresImpreso &impreso);
void dibujarValoresClases(Lienzo &lienzo, const ValoresImpreso &impreso);

} // namespace impreso
