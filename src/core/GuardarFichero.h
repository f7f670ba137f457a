#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file that the user named so that what stands at `ruta` is either the old one or the
/// whole new one, safely on the disk. Returns why it could not be written, in the session's
/// language; empty when it was. One of the program's own files is refused.
QString guardarFichero(const QString &ruta, const QByteArray &contenido);
