#pragma once

#include <QString>

class cFecha;

/// The earliest presentation date, yyyymmdd; there is no latest one.
inline constexpr qint32 PrimeraFechaPresentacion = 20020101;

/// Outcome of checking a presentation date.
struct FechaPresentacion
{
    qint32 fecha = 0; ///< yyyymmdd; 0 when it was refused
    QString titulo; ///< title and text of the warning, in the session's language; empty when valid
    QString mensaje;

    bool valida() const { return fecha != 0; }
};

/// Reads `texto` in the order of `fechas`: a date of the calendar, not before the earliest.
FechaPresentacion comprobarFechaPresentacion(const QString &texto, const cFecha &fechas);
