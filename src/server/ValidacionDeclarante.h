#pragma once

#include "dataservice/Registros.h"

namespace servidor {

enum class Telefono { Obligatorio, PuedeFaltar };

/// The rules that a RegValidacion breaks, in the order in which they are told; at most one a field.
QList<Regla> reglasRotas(const Registro &datos, Telefono telefono);

} // namespace servidor
