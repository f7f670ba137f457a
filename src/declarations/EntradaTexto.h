#pragma once

#include <QMap>
#include <QString>

/// Figures of a return given as texts, on the command line or in a file, for the session's records.

/// An amount in cents, or why it is refused. An empty one is refused too: there it is a slip.
struct ImporteDado
{
    double centimos = 0;
    QString motivo; ///< in the session's language; empty when it was read
};
ImporteDado importeDado(const QString &texto);

/// The amounts that are entered in a 430.
enum class Dato430 { Base, BaseRectificacion, CuotaRectificacion };

/// Takes an amount into cDatos430: empty, or why not.
QString tomarDato(Dato430 cual, const QString &texto);

/// Boxes of a 480 by their numbers, in cents: the order in which they were given does not matter.
using Casillas480 = QMap<int, double>;

/// Takes boxes that are filled in into cDatos480. The first one, in the order of their numbers,
/// with which the totals pass what fits; 0 when all of them were taken.
int tomarCasillas(const Casillas480 &dadas);

/// "04" for 4.
QString nombreCasilla(int numero);
