#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/Sentencia.h"

#include <string>

namespace servidor {

enum class Recientes { Contar, NoContar };

/// Inserts or updates a RegDeclarante within the caller's transaction, as
/// cDeclarante::GuardarDeclarante tells. Unless it is done nothing has been written.
Guardado guardarDeclarante(const PConexion &conexion, const Registro &registro,
                           Recientes recientes);

/// Makes a declarant the most recent one. Throws SinDeclarante when it is not stored.
void marcarReciente(const PConexion &conexion, qint32 CSCO);

/// SELECT of all a declarant's columns, to be followed by a condition or an order, and the
/// RegDeclarante of a row of it.
std::string seleccionDeclarante(std::string_view resto);
Registro registroDeclarante(const Sentencia &fila);

/// Mark of a stored record: another one when any field differs.
QByteArray huella(const Registro &registro);

/// Throws ErrorDatos; `nombre` where it is known.
[[noreturn]] void sinDeclarante(const QString &nombre = {});

/// Checks and stores a set of declarants as cDeclarante::GuardarConjunto tells.
Filas guardarConjunto(const PConexion &datos, const PConexion &lectura, const Filas &registros,
                      Existentes existentes, qint16 idioma);

} // namespace servidor
