#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"

namespace servidor {

/// Checks and stores a set of declarants as cDeclarante::GuardarConjunto tells.
Filas guardarConjunto(const PConexion &modelo, const PConexion &consulta, const Filas &registros,
                      Existentes existentes, qint16 idioma);

} // namespace servidor
