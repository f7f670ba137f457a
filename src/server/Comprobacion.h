#pragma once

#include "server/Formato.h"

#include <QString>

#include <SQLiteCpp/Database.h>

namespace servidor {

enum class Version {
    Actual, ///< the schema of this program only
    ActualOMenor, ///< an older one too: it is about to be brought up, or copied as it is
};

/// Looks at the file's first bytes, without SQLite: it would create a missing file, take an empty
/// one for good, and replay a journal into a foreign one. The file's schema number; throws
/// ErrorDatos.
qint32 comprobarCabecera(const QString &ruta, const Formato &formato, Version version);

/// Opens a file that passes that check and SQLite's own check of its content. Throws ErrorDatos.
SQLite::Database abrirComprobada(const QString &ruta, const Formato &formato,
                                 Version version = Version::Actual);

/// How long a call waits for a file that another program has locked.
inline constexpr int EsperaMs = 250;

} // namespace servidor
