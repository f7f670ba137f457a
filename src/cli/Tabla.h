#pragma once

#include "dataservice/Registros.h"

#include <QStringList>

#include <functional>
#include <span>

/// One column of a list: how it is called and what it shows of a row.
struct Columna
{
    QString titulo;
    std::function<QString(const QVariantList &fila)> texto;
    bool numerica = false; ///< aligned to the right
};

/// The rows under their titles, in aligned columns.
QString textoTabla(std::span<const Columna> columnas, const Filas &filas);

/// The rows as a JSON array of objects: the first names.size() elements under these names. An
/// element named IMPORTE, in cents, becomes a number of euros: every amount of up to 13 integer
/// digits and two decimals is exact in it.
QString textoJson(std::span<const QStringView> nombres, const Filas &filas);
