#pragma once

#include "core/Modos.h"

#include <QString>

/// Dates as text and as whole numbers yyyymmdd. The order is dd/mm/yyyy when `fecidioma` is "C" and
/// yyyy/mm/dd for any other code.
class cFecha
{
public:
    QString fecidioma() const { return m_idioma; }
    void fecidioma(const QString &codigo) { m_idioma = codigo; }

    /// What an empty date box shows: "__/__/____" or "____/__/__".
    QString FecVacia() const;
    /// Input mask of a date box and the format it stands for.
    QString Mascara() const;
    QString Formato() const;
    int miYear() const;

    /// Whether `texto` is a date in the language's order, complete and in the calendar.
    bool EsFecha(const QString &texto) const;
    /// yyyymmdd; 0 when `texto` is not a date.
    qint32 StringToLong(const QString &texto) const;
    QString LongToString(qint32 fecha) const;

private:
    bool castellano() const { return m_idioma == CodigoIdioma::Castellano; }

    QString m_idioma = CodigoIdioma::Castellano;
};
