#pragma once

#include <QString>

/// State of the session: language, bounds of what can be declared, declarants stored.
class CEntrada
{
public:
    /// "E" Basque, any other value Castilian; empty while none was ever chosen.
    QString IDI() const { return m_idi; }
    /// Stores the code, then switches the texts and the date order. When storing fails (ErrorDatos)
    /// nothing is switched.
    void IDI(const QString &codigo);

    qint16 EJERMIN() const { return m_ejermin; }
    qint16 EJERMAX() const { return m_ejermax; }
    qint16 PERMIN() const { return m_permin; }
    qint16 PERMAX() const { return m_permax; }
    qint32 NUMDECLA() const { return m_numdecla; }

    /// Reads NUMDECLA again; to be called after every save, deletion and import.
    void InicializarContadores();
    void ModificarIdioma(const QString &codigo);
    /// Reads the stored code into IDI; texts and dates stay as they are.
    void LeerIdioma();
    void LeerEjercicioPeriodoMinMax();
    /// Puts IDI in force for texts and dates without storing it; an empty code counts as "C".
    void AplicarIdioma() const;

private:
    QString m_idi;
    qint16 m_ejermin = 0;
    qint16 m_ejermax = 0;
    qint16 m_permin = 0;
    qint16 m_permax = 0;
    qint32 m_numdecla = 0;
};
