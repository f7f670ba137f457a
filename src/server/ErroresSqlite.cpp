#include "server/ErroresSqlite.h"

#include <cerrno>
#include <sqlite3.h>

namespace servidor {

namespace {

// A write refused by a quota or a size limit reaches us as a plain I/O error; only the system's own
// code tells that it is the room that is missing.
bool faltaEspacio(int codigoSistema)
{
#ifdef EDQUOT
    if (codigoSistema == EDQUOT)
        return true;
#endif
    return codigoSistema == ENOSPC || codigoSistema == EFBIG;
}

Fallo clasificar(int codigo, int codigoSistema)
{
    switch (codigo) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Fallo::EnUso;
    case SQLITE_CONSTRAINT: // the only rows that others depend on are declarants
        return Fallo::TieneDeclaraciones;
    case SQLITE_FULL:
        return Fallo::SinEspacio;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN: // the file itself is known to be there: its journal cannot be made
        return faltaEspacio(codigoSistema) ? Fallo::SinEspacio : Fallo::SoloLectura;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Fallo::Danada;
    default:
        return faltaEspacio(codigoSistema) ? Fallo::SinEspacio : Fallo::LecturaEscritura;
    }
}

} // namespace

ErrorDatos traducir(const SQLite::Exception &error, const QString &ruta)
{
    // SQLite keeps no system code for a commit that failed; errno still has it.
    const int sistema = errno;
    return ErrorDatos(clasificar(error.getErrorCode() & 0xff, sistema), ruta,
                      QString::fromUtf8(error.what()));
}

} // namespace servidor
