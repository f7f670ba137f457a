#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"

namespace servidor {

/// The (code, name) rows of a SELECT that came from the caller, ordered by name as a reader
/// expects. Anything but one SELECT of two columns throws std::invalid_argument.
Filas listaConsulta(const PConexion &consulta, const QString &sql);

} // namespace servidor
