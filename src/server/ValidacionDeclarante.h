#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"

#include <QStringView>

namespace servidor {

/// Whether a tax identifier (9 characters, upper case) has the form and the control character of a
/// DNI, NIE, special person (K, L, M) or entity.
bool nifValido(QStringView nif);

enum class Telefono { Obligatorio, PuedeFaltar };

/// The rules that a RegValidacion breaks, in the order in which they are told; at most one a field.
QList<Regla> reglasRotas(const Registro &datos, Telefono telefono);

/// Findings on a RegDeclarante read from an exchange file, one row (text) each.
Filas hallazgosImportar(const PConexion &lectura, const Registro &registro, qint16 idioma);

} // namespace servidor
