#pragma once

#include "dataservice/Registros.h"

using namespace Qt::StringLiterals;

/// State of the declarant list.
class cDecLista
{
public:
    static constexpr quint8 PorDni = 1;
    static constexpr quint8 PorNombre = 2;

    qint32 CSCO() const { return m_csco; } ///< key of the selected declarant
    void CSCO(qint32 codigo) { m_csco = codigo; }
    qint32 NUMDECLASEL() const { return m_numdeclasel; } ///< declarants listed
    void NUMDECLASEL(qint32 numero) { m_numdeclasel = numero; }
    QString MODO() const { return m_modo; } ///< "C" open, "E" delete
    void MODO(const QString &modo) { m_modo = modo; }
    quint8 ORDEN() const { return m_orden; }
    void ORDEN(quint8 orden) { m_orden = orden; }

    /// FilaDeclarante rows in the order ORDEN; sets NUMDECLASEL.
    Filas CargarDeclarantes();

private:
    qint32 m_csco = 0;
    qint32 m_numdeclasel = 0;
    QString m_modo = u"C"_s;
    quint8 m_orden = PorDni;
};
