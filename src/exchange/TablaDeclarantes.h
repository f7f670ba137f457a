#pragma once

#include "dataservice/Registros.h"

#include <QSet>
#include <QString>

/// A declarant that can be exported.
struct DeclaranteExportable
{
    qint32 csco = 0;
    QString dni;
    QString nombre;
    Registro registro; ///< RegDeclarante: the fields for the file

    static DeclaranteExportable de(const Registro &registro);
};

/// An ordered table of declarants, each at most once. Positions count from 1.
class TablaDeclarantes
{
public:
    void CLEAR();
    /// At the end; one that is there already is not added again.
    void ANADIR(const DeclaranteExportable &declarante);
    void INSERTAR(int posicion, const DeclaranteExportable &declarante);
    void BORRAR(int posicion);
    int COUNT() const { return static_cast<int>(m_filas.size()); }
    bool PERTENECE(qint32 csco) const { return m_claves.contains(csco); }
    /// One with key 0 when there is none at that position.
    DeclaranteExportable ELEMENTO(int posicion) const { return m_filas.value(posicion - 1); }

    const QList<DeclaranteExportable> &filas() const { return m_filas; }
    /// All rows at once.
    void filas(const QList<DeclaranteExportable> &filas);

private:
    QList<DeclaranteExportable> m_filas;
    QSet<qint32> m_claves;
};
