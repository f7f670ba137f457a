#pragma once

#include <QString>

#include <SQLiteCpp/Database.h>
#include <functional>

namespace servidor {

/// Whether a journal lies beside a database. Then the file may be half-way through a commit that
/// SQLite undoes when it opens it.
bool tieneDiario(const QString &ruta);

/// Before a file with a journal is opened. A journal is left alone while somebody is writing. One
/// left by a crash has to belong to the file and leave it whole, tried out on a copy; one of
/// another file (a backup was put back beside it) is set aside under another name. Throws
/// ErrorDatos when the file is damaged either way; then nothing has been touched.
void resolverDiario(const QString &ruta);

/// A write-ahead log beside a database that keeps none is another file's, and SQLite would read it
/// all the same: it is set aside under another name.
void apartarRegistroAjeno(const QString &ruta);

/// Runs `f`, which ends a change of the database. After an error of which the outcome is unknown
/// the file decides: where only its folder was left to be synced, the change is in it and holds.
void terminarCambio(SQLite::Database &base, const QString &ruta, const std::function<void()> &f);

} // namespace servidor
