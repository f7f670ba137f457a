#pragma once

#include "dataservice/ErrorDatos.h"
#include "server/Comprobacion.h"

#include <QStringList>

#include <SQLiteCpp/Database.h>
#include <compare>
#include <functional>
#include <optional>

namespace servidor {

/// Tells whether the file at a path is still the same one.
struct Identidad
{
    quint64 dispositivo = 0;
    quint64 numero = 0;
    bool operator==(const Identidad &) const = default;
};

/// Nothing when there is no regular file at `ruta`.
std::optional<Identidad> identidad(const QString &ruta);

/// A file being written beside its final place; removed again unless it gets there.
class Provisional
{
public:
    explicit Provisional(const QString &destino); ///< under a name that no other program uses
    ~Provisional();
    Provisional(const Provisional &) = delete;
    Provisional &operator=(const Provisional &) = delete;

    const QString &ruta() const { return m_ruta; }

    /// Puts the file in its final place, replacing what is there; on disk when this returns.
    void colocar();
    /// The same only while the place is empty: false when another program has filled it.
    bool colocarSiVacio();

private:
    void preparar() const;
    QStringList ajenos() const;

    QString m_destino;
    QString m_ruta;
};

/// Why a file beside `ruta` cannot be made; nothing when it can.
std::optional<Fallo> falloAlCrear(const QString &ruta);

/// Name under which a file that cannot be used is kept: its own with the time.
QString nombreApartado(const QString &ruta);

/// Gives what SQLite would read together with a database, and is another file's, another name.
void apartar(const QString &resto);

/// Throws ErrorDatos when a link that leads nowhere stands at `ruta`.
void rechazarEnlaceRoto(const QString &ruta);

/// Renames, replacing `destino`, and makes the new name last. Throws ErrorDatos.
void renombrar(const QString &origen, const QString &destino);

/// Creates a folder with its parents. Throws ErrorDatos naming it.
void crearCarpeta(const QString &carpeta);

/// Makes a database file of `formato` whose content `llenar` writes. It is written beside and put
/// in place once it is whole and on disk, so that nobody ever finds half of one. False when it was
/// to fill an empty place and another program has done so meanwhile.
enum class Lugar { Vacio, Ocupado };
bool crearFichero(const QString &ruta, const Formato &formato, Lugar lugar,
                  const std::function<void(SQLite::Database &)> &llenar);

/// The same with the content of another database, read through SQLite so that a transaction under
/// way in it does not matter. `antes` runs when the copy is whole, right before it takes its name.
void copiarFichero(SQLite::Database &origen, const QString &destino,
                   const std::function<void()> &antes = {});

/// Copies the whole content of `origen` into `destino` as one transaction of the latter; `ruta`
/// names it in errors.
void copiarContenido(SQLite::Database &origen, SQLite::Database &destino, const QString &ruta);

} // namespace servidor
