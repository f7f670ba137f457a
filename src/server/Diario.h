#pragma once

#include <QString>

namespace servidor {

/// Whether a journal lies beside a database. Then the file may be half-way through a commit that
/// SQLite undoes when it opens it.
bool tieneDiario(const QString &ruta);

/// Before a file with a journal is opened. A journal is left alone while somebody is writing. One
/// left by a crash has to belong to the file and leave it whole, tried out on a copy; one of
/// another file (a backup was put back beside it) is set aside under another name. Throws
/// ErrorDatos when the file is damaged either way; then nothing has been touched.
void resolverDiario(const QString &ruta);

} // namespace servidor
