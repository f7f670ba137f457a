#pragma once

#include "dataservice/Registros.h"

#include <QString>

#include <functional>

/// What became of an export.
struct Exportado
{
    qint64 lineas = 0; ///< whole lines in the file
    QString motivo; ///< why not all of them; empty when all are
    bool detenida = false; ///< by the user
};

using Visitante = std::function<bool(const Registro &)>; ///< false: no more

/// Writes the RegDeclarantes that `recorrer` hands to its argument to a file, or to standard output
/// when `destino` is "-". `seguir` is called every few lines with their number; false ends the
/// export after that line. A failure leaves the lines already written.
Exportado exportar(const QString &destino, const std::function<void(const Visitante &)> &recorrer,
                   const std::function<bool(qint64)> &seguir);

/// Why nothing may be written to a file; empty when it can be tried.
QString motivoNoExportable(const QString &destino);
