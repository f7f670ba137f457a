#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"

namespace servidor {

/// Findings on a RegDeclarante read from an exchange file, one row (text) each.
Filas hallazgosImportar(const PConexion &consulta, const Registro &registro, qint16 idioma);

} // namespace servidor
