#pragma once

#include "dataservice/ErrorDatos.h"

#include <QString>
#include <QtGlobal>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <cerrno>
#include <utility>

namespace servidor {

/// What tells one of our database files from any other: the two numbers in the SQLite header.
struct Formato
{
    qint32 aplicacion;
    qint32 esquema;
    bool soloLectura;
};

/// Different numbers, so that one of our files is never taken for the other.
inline constexpr Formato FormatoDatos{0x4F73744D, 2, false}; // "OstM"

/// To be raised whenever one of the lookup texts changes: an installed file is then renewed.
inline constexpr qint32 EdicionLectura = 1;
inline constexpr Formato FormatoLectura{0x4F73744C, EdicionLectura, true}; // "OstL"

/// The ErrorDatos that says what a SQLite error just caught means for the user.
ErrorDatos traducir(const SQLite::Exception &error, const QString &ruta);

/// Runs `f`, turning SQLite errors into ErrorDatos about `ruta`.
template <class F> decltype(auto) conErrores(const QString &ruta, F &&f)
{
    errno = 0; // what is found there afterwards is of this call
    try {
        return std::forward<F>(f)();
    } catch (const SQLite::Exception &error) {
        throw traducir(error, ruta);
    }
}

enum class Version {
    Actual, ///< the schema of this program only
    ActualOMenor, ///< an older one too: it is about to be brought up, or copied as it is
};

/// Looks at the file's first bytes, without SQLite: it would create a missing file, take an empty
/// one for good, and replay a journal into a foreign one. The file's schema number; throws
/// ErrorDatos.
qint32 comprobarCabecera(const QString &ruta, const Formato &formato, Version version);

/// Opens a file that passes that check, and deals with a journal left beside it. Throws ErrorDatos.
SQLite::Database abrir(const QString &ruta, const Formato &formato,
                       Version version = Version::Actual);

/// SQLite's own check of the whole content. Throws ErrorDatos; `ruta` names the file. The quick one
/// leaves the indexes out.
void comprobarContenido(SQLite::Database &base, const QString &ruta,
                        const char *comprobacion = "PRAGMA quick_check(1)");

/// Both.
SQLite::Database abrirComprobada(const QString &ruta, const Formato &formato,
                                 Version version = Version::Actual);

/// How long a call waits for a file that another program has locked.
inline constexpr int EsperaMs = 250;

} // namespace servidor
