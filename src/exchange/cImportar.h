#pragma once

#include <QString>

/// State of the import of declarants.
class cImportar
{
public:
    QString FICHEROAIMPORTAR() const { return m_fichero; } ///< the file to read
    void FICHEROAIMPORTAR(const QString &ruta) { m_fichero = ruta; }

private:
    QString m_fichero;
};
