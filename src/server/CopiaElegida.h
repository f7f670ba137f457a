#pragma once

#include "dataservice/Dialogos.h"
#include "server/FicherosBase.h"

#include <QString>

#include <SQLiteCpp/Database.h>
#include <optional>

namespace servidor {

/// The file that is to be restored. It is looked at, and later read, as a copy of our own beside
/// the database, so that what is restored is what was checked; the user's file is only read, and a
/// save that it was in the middle of is undone in the copy.
class CopiaElegida
{
public:
    /// Throws ErrorDatos naming `ruta` unless it is a whole model database of this program, of its
    /// schema or an older one, and not the one at `propia` itself.
    CopiaElegida(const QString &ruta, const QString &propia);
    ~CopiaElegida();
    CopiaElegida(const CopiaElegida &) = delete;
    CopiaElegida &operator=(const CopiaElegida &) = delete;

    const ResumenBase &resumen() const { return m_resumen; }
    SQLite::Database &base() { return *m_base; }

private:
    Provisional m_fichero;
    ResumenBase m_resumen;
    std::optional<SQLite::Database> m_base;
};

/// How much an open model database holds. Throws ErrorDatos when it has not its tables.
ResumenBase resumir(SQLite::Database &base, const QString &ruta);

} // namespace servidor
