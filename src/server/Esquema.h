#pragma once

#include <QString>

namespace servidor {

/// Creates an empty model database. It appears at `ruta` whole or not at all.
void crearModelo(const QString &ruta);

} // namespace servidor
