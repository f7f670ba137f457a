#pragma once

#include "printing/ValoresImpreso.h"

class QPainter;

namespace impreso {

/// Draws the model 480 form on one page, with the mark of `copia` (Copias.h).
void dibujar480(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia);

} // namespace impreso
