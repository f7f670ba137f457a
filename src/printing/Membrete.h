#pragma once

#include "printing/ValoresImpreso.h"

namespace impreso {

class Lienzo;

/// Height of the letterhead, which stands above the top of a form's header section.
inline constexpr double AltoMembrete = 18;

/// Letterhead of both forms: arms, treasury, department, tax and the model's number.
void dibujarMembrete(Lienzo &lienzo, const ValoresImpreso &impreso, const QString &modelo);

} // namespace impreso
