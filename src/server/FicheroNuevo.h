#pragma once

#include "server/Formato.h"

#include <QString>

#include <SQLiteCpp/Database.h>
#include <functional>

namespace servidor {

/// Makes a database file of `formato` whose content `llenar` writes. It is written beside and put
/// in place once it is whole and on disk, so that nobody ever finds half of one.
void crearFichero(const QString &ruta, const Formato &formato,
                  const std::function<void(SQLite::Database &)> &llenar);

/// The same with the content of another database, read through SQLite so that a transaction under
/// way in it does not matter. `antes` runs when the copy is whole, right before it takes its name.
void copiarFichero(SQLite::Database &origen, const QString &destino,
                   const std::function<void()> &antes = {});

/// Copies the whole content of `origen` into `destino` as one transaction of the latter; `ruta`
/// names it in errors.
void copiarContenido(SQLite::Database &origen, SQLite::Database &destino, const QString &ruta);

} // namespace servidor
