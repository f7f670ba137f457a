#pragma once

#include "dataservice/Registros.h"

#include <QString>

namespace servidor {

/// Reads a record that came from outside without trusting its length, its types or its figures.
/// What does not fit reads as 0 or empty and makes valido() false.
class LectorRegistro
{
public:
    LectorRegistro(const Registro &registro, qsizetype longitud);

    bool valido() const { return m_valido; }
    void exigirValido() const; ///< throws std::invalid_argument

    qint32 entero(qsizetype campo, qint32 minimo, qint32 maximo);
    qint64 importe(qsizetype campo); ///< whole cents, at most 15 digits
    qint64 tipo(qsizetype campo); ///< rate with two decimals, in hundredths
    QString texto(qsizetype campo); ///< trimmed, upper case
    /// Code given as text of digits or as a number; empty is 0.
    qint32 codigo(qsizetype campo, qint32 maximo);

private:
    double numero(qsizetype campo);
    double rechazar();

    Registro m_registro; // shared, not copied: a temporary may be handed in
    bool m_valido;
};

/// The text as every text of a declarant is stored.
QString normalizado(const QString &texto);

} // namespace servidor
