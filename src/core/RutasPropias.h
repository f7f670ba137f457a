#pragma once

#include <QString>

/// Why the file that the user names must not be written, in the session's language; empty when
/// nothing speaks against it. Refused are the databases, their journals and their backups, by
/// whatever link or spelling they are named and also while they do not exist, the program itself,
/// and what is there but no regular file (a folder, a pipe, a device).
QString motivoRutaRechazada(const QString &ruta);
