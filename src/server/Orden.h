#pragma once

#include "dataservice/Registros.h"

#include <QString>

namespace servidor {

/// Key under which a text sorts as a reader expects, compared byte by byte: letter case and accents
/// do not count, Ñ comes after N, Ç is a C.
QString claveOrden(const QString &texto);

/// Orders the rows of a list by the text in `columna`.
void ordenarPorTexto(Filas &filas, qsizetype columna);

} // namespace servidor
