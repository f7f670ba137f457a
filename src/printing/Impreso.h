#pragma once

#include "printing/ValoresImpreso.h"

class QPainter;

namespace impreso {

/// Draw a form on one page, with the mark of `copia` (cImOf.h).
void dibujar430(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia);
void dibujar480(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia);

} // namespace impreso
