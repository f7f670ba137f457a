#pragma once

#include "server/Comprobacion.h"

#include <QString>

#include <string>

namespace servidor {

/// Creates an empty model database. It appears at `ruta` whole or not at all; false when another
/// program has put one there meanwhile.
bool crearDatos(const QString &ruta);

/// Throws ErrorDatos (Incompleta, Danada) unless every table, index and trigger of a model database
/// of today's schema is there, and as crearDatos() makes it; others may stand beside them.
void comprobarEsquema(SQLite::Database &base, const QString &ruta);

/// SQL that takes a model database from schema 1 to 2: the check value of each row.
std::string sqlDesdeEsquema1();

/// Builds the lookup database at `ruta` from the texts compiled in when there is none, an older
/// edition, or one whose content is not that of the texts. Throws ErrorDatos for a file that is
/// another program's or of a newer edition; it is left as it was.
void prepararLectura(const QString &ruta, const Formato &formato = FormatoLectura);

} // namespace servidor
