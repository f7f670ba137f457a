#pragma once

#include "printing/ValoresImpreso.h"

class QPainter;

namespace impreso {

class Lienzo;

/// Draw a form on one page, with the mark of `copia` (cImOf.h).
void dibujar430(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia);
void dibujar480(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia);

/// Height of the letterhead, which stands above the top of a form's header section.
inline constexpr double AltoMembrete = 18;

/// Letterhead of both forms: arms, treasury, department, tax and the model's number.
void dibujarMembrete(Lienzo &lienzo, const ValoresImpreso &impreso, const QString &modelo);

} // namespace impreso
