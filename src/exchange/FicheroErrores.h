#pragma once

#include "exchange/FicheroSalida.h"

#include <QString>

/// "Errores.txt": what was wrong in each line of an imported file, and a description of the format
/// when anything was.
class FicheroErrores
{
public:
    static QString ruta(); ///< in the tables folder

    /// Begins it afresh. Throws ErrorDatos when that cannot be done.
    FicheroErrores();

    void anotar(qint64 linea, const QString &motivo);
    /// The description and the end of it.
    void terminar();

private:
    void escribir(const QString &linea);

    FicheroSalida m_salida;
    bool m_alguno = false;
};
