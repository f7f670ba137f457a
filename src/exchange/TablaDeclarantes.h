#pragma once

#include "dataservice/Registros.h"

#include <QSet>

/// An ordered table of declarants (RegDeclarante), each at most once. Positions count from 1.
class TablaDeclarantes
{
public:
    void CLEAR();
    /// At the end; one that is there already is not added again.
    void ANADIR(const Registro &declarante);
    void INSERTAR(int posicion, const Registro &declarante);
    void BORRAR(int posicion);
    int COUNT() const { return static_cast<int>(m_filas.size()); }
    bool PERTENECE(qint32 csco) const { return m_claves.contains(csco); }
    Registro ELEMENTO(int posicion) const { return m_filas.value(posicion - 1).toList(); }

    const Filas &filas() const { return m_filas; }
    /// All rows at once.
    void filas(const Filas &filas);

private:
    Filas m_filas;
    QSet<qint32> m_claves;
};
