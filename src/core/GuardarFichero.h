#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QFileDevice;
class QIODevice;

/// Writes all of it, in as many pieces as the device takes; false after an error.
bool escribirEntero(QIODevice &destino, QByteArrayView bytes);

/// Puts what was written on the disk for good; where that cannot be asked for, it is not missed.
bool sincronizado(int descriptor);

/// Writes into a file that is open, and which keeps the first error; false when it gave up.
using Escritura = std::function<bool(QFileDevice &)>;

/// Writes a file that the user named so that what stands at `ruta` is either the old one or the
/// whole new one, safely on the disk. Returns why it could not be written, in the session's
/// language; empty when it was. One of the program's own files is refused. `lleno`, when given, is
/// set when there is no room left on the disk.
QString guardarFichero(const QString &ruta, const QByteArray &contenido, bool *lleno = nullptr);
/// The same for one that is written bit by bit. When `escribir` gave up without an error of the
/// file's, the old one stays and nothing is told.
QString guardarFichero(const QString &ruta, const Escritura &escribir, bool *lleno = nullptr);
