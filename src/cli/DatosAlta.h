#pragma once

#include "cli/Orden.h"

#include <optional>

using Rechazo = std::optional<Resultado>;

/// Makes the declarant record a new one of the options given: null, or why not.
Rechazo tomarDatosAlta(const Argumentos &argumentos);
