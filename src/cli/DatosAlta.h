#pragma once

#include "cli/Orden.h"
#include "declarants/CamposDeclarante.h"

#include <optional>

using Rechazo = std::optional<Resultado>;

/// The option of a field: its property's name in small letters.
QString opcionDe(const campos::Definicion &campo);

/// Makes the declarant record a new one of the options given: null, or why not.
Rechazo tomarDatosAlta(const Argumentos &argumentos);
