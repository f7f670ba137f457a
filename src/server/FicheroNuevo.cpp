#include "server/FicheroNuevo.h"

#include "server/Comprobacion.h"
#include "server/ErroresSqlite.h"
#include "server/Ficheros.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

namespace servidor {

namespace {

SQLite::Database abrirNueva(const QString &ruta)
{
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                          EsperaMs);
    // Until it is in its place a crash just leaves rubbish to be removed: no journal, one sync.
    base.exec("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    return base;
}

void numerar(SQLite::Database &base, const Formato &formato)
{
    base.exec("PRAGMA application_id = " + std::to_string(formato.aplicacion));
    base.exec("PRAGMA user_version = " + std::to_string(formato.esquema));
}

} // namespace

void crearFichero(const QString &ruta, const Formato &formato,
                  const std::function<void(SQLite::Database &)> &llenar)
{
    Provisional provisional(ruta);
    conErrores(ruta, [&] {
        auto base = abrirNueva(provisional.ruta());
        base.exec("BEGIN");
        numerar(base, formato);
        llenar(base);
        base.exec("COMMIT");
    });
    provisional.colocar();
}

void copiarFichero(SQLite::Database &origen, const QString &destino,
                   const std::function<void()> &antes)
{
    Provisional provisional(destino);
    conErrores(destino, [&] {
        auto base = abrirNueva(provisional.ruta());
        copiarContenido(origen, base, destino);
    });
    if (antes)
        antes();
    provisional.colocar();
}

void copiarContenido(SQLite::Database &origen, SQLite::Database &destino, const QString &ruta)
{
    conErrores(ruta, [&] {
        SQLite::Backup copia(destino, origen);
        const int resultado = copia.executeStep();
        if (resultado != SQLITE_DONE) // "busy" and "locked" come back as results
            throw SQLite::Exception("copy not finished", resultado);
    });
}

} // namespace servidor
