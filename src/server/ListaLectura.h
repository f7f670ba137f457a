#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"

#include <QString>

namespace servidor {

/// The (code, name) rows of a SELECT that came from the caller, ordered by name as a reader
/// expects. Anything but one SELECT of two columns throws std::invalid_argument.
Filas listaLectura(const PConexion &lectura, const QString &sql);

/// Key under which a text sorts as a reader expects, compared byte by byte: letter case and accents
/// do not count, Ñ comes after N, Ç is a C.
QString claveOrden(const QString &texto);

/// Orders the rows of a list by the text in `columna`.
void ordenarPorTexto(Filas &filas, qsizetype columna);

} // namespace servidor
