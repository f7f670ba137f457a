#pragma once

#include "server/Formato.h"

#include <QString>

namespace servidor {

/// Builds the lookup database at `ruta` from the texts compiled in when there is none or an older
/// edition. Throws ErrorDatos for a file that is neither; it is left as it was.
void prepararConsulta(const QString &ruta, const Formato &formato = FormatoConsulta);

} // namespace servidor
