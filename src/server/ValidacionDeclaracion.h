#pragma once

#include "dataservice/Registros.h"

namespace servidor {

/// Checks of a return that need no database; the codes are those of cDeclaracion. A malformed
/// record throws std::invalid_argument.

inline constexpr qint16 CabeceraGuardada = 5; ///< left to whoever can look it up

/// On the first seven elements of a RegCabecera.
bool dentroDeLimites(const Registro &cabecera);
qint16 reglaCabecera(const Registro &cabecera);
qint16 reglaDatos430(const Registro &datos);
qint16 reglaDatos480(const Registro &datos);

} // namespace servidor
