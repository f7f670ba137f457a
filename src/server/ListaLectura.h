#pragma once

#include "dataservice/ClaveOrden.h"
#include "dataservice/Registros.h"
#include "server/Conexion.h"

namespace servidor {

/// The (code, name) rows of a SELECT that came from the caller, ordered by name as a reader
/// expects. Anything but one SELECT of two columns throws std::invalid_argument.
Filas listaLectura(const PConexion &lectura, const QString &sql);

/// Orders the rows of a list by the text in `columna`.
void ordenarPorTexto(Filas &filas, qsizetype columna);

} // namespace servidor
