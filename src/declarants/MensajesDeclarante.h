#pragma once

#include "dataservice/Registros.h"

#include <QString>

/// The service's codes as messages, in the session's language. Empty for a code that has none.

/// Rule 1 to 12 of ValidarDatosDeclarante.
QString textoValidacionDeclarante(qint16 codigo);
/// The field at fault for that rule.
RegValidacion::Campo campoValidacionDeclarante(qint16 codigo);
/// 1 or 2 of GuardarDeclarante.
QString textoGuardarDeclarante(qint16 codigo);
/// 1 to 5 of ValidarDatosComunes; 4 quotes the session's bounds.
QString textoCabecera(qint16 codigo);
