#pragma once

#include <QDate>
#include <QString>

namespace servidor {

/// Copies the bytes of a file, and those of the journal beside it. Throws ErrorDatos.
void copiarBytes(const QString &origen, const QString &destino);

/// Gives the content of `ruta` a second name, in place of what stands there; `ruta` stays. Throws
/// ErrorDatos.
void conservarComo(const QString &ruta, const QString &nombre);

/// Keeps the file at `ruta`, about to be replaced, as the newest of the `cuantas` earlier ones:
/// "X.mdb" as "X.1.mdb", which was "X.2.mdb" one copy ago, and so on. At every moment there is a
/// whole file at `ruta`.
void conservarAnterior(const QString &ruta, int cuantas);

/// Path of the copy of a day, beside the user's own: "X_auto_2026-01-31.mdb".
QString rutaDelDia(const QString &carpeta, const QString &archivo, QDate dia);

/// Removes the copies of days but for the `cuantas` newest.
void podarDelDia(const QString &carpeta, const QString &archivo, int cuantas);

} // namespace servidor
