#pragma once

#include "dataservice/Codigos.h"

/// Rounding rules shared by every record.

/// Half-up rounding of x ≥ 0 to a whole number.
double redondearMitad(double x);

/// Half away from zero, to `decimales` (0 to 6); more than 6 returns the value unchanged.
double redondear(double valor, int decimales);

/// A rate as the records hold it: widened, rounded to two decimals, narrowed again.
float redondearTipo(float tipo);

/// Quota in whole cents of a base in whole cents at `tipo` percent, half away from zero. The rate
/// counts at its two decimals (the single-precision 7.15 is 7.15 exactly), in integer arithmetic.
double calcularCuota(float tipo, double base);

/// Whether an amount in cents fits a box of 13 integer digits.
bool cabeEnCasilla(double centimos);
