#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/Modelo.h"

namespace servidor {

/// Saves header and figures (RegGuardar and what follows it) in one transaction: the return's key,
/// or 0 when it was refused. Throws NoEncontrado when the declarant or the return is not stored.
qint32 guardarDeclaracion(const QString &ruta, const Modelo &modelo, const Registro &datos);

/// The figures of a return, in the order of its model's record.
Registro cargarFiguras(const PConexion &conexion, const Modelo &modelo, qint32 CSDE);

} // namespace servidor
