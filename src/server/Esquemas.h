#pragma once

#include "server/Comprobacion.h"

#include <QString>

namespace servidor {

/// Creates an empty model database. It appears at `ruta` whole or not at all.
void crearDatos(const QString &ruta);

/// Builds the lookup database at `ruta` from the texts compiled in when there is none or an older
/// edition. Throws ErrorDatos for a file that is neither; it is left as it was.
void prepararLectura(const QString &ruta, const Formato &formato = FormatoLectura);

} // namespace servidor
