#pragma once

#include "dataservice/Codigos.h"

#include <QString>

/// Amounts as text, in the form "1.234.567,89" of both languages.

/// An amount read from text; `fallo` says why it was refused.
struct ImporteLeido
{
    enum Fallo { Ninguno, Ilegible, DemasiadasCifras, DemasiadosDecimales };

    double centimos = 0;
    Fallo fallo = Ninguno;

    bool valido() const { return fallo == Ninguno; }
    /// Why it was refused, in the session's language.
    QString motivo(const QString &texto) const;
};

/// Reads an amount. The first comma is the decimal point and full stops in front of it group
/// thousands; a lone full stop that cannot be grouping (1234.56, 12.5) is the decimal point; empty
/// is 0. At most 13 integer digits and 2 decimals. Anything else is refused, never guessed.
ImporteLeido leerImporte(QStringView texto);

/// "1.234,56"; zero is "0,00".
QString textoImporte(double centimos);

/// The same for an entry box: zero is empty.
QString textoCasilla(double centimos);

/// A rate: "6,00".
QString textoTipo(float tipo);

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
