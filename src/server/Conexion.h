#pragma once

#include "server/Comprobacion.h"
#include "server/FicherosBase.h"

#include <QString>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace servidor {

class Conexion;
using PConexion = std::shared_ptr<Conexion>;

/// An open, checked database with its prepared statements. Connections are kept between calls, so
/// that a service object costs nothing to make; one whose file was replaced or removed, or gave an
/// error, is dropped.
/// For one thread, as the whole service is.
class Conexion : public std::enable_shared_from_this<Conexion>
{
public:
    static PConexion datos(const QString &ruta) { return de(ruta, FormatoDatos); }
    static PConexion lectura(const QString &ruta) { return de(ruta, FormatoLectura); }

    /// Closes what is kept open of that file, before it is replaced.
    static void olvidar(const QString &ruta);

    Conexion(const QString &ruta, const Formato &formato);

    const QString &ruta() const { return m_ruta; }
    SQLite::Database &base() { return m_base; }
    bool enTransaccion() const;
    /// The file could not be written when it was opened.
    bool soloLectura() const;
    /// Looks through the whole file unless that has been done; throws ErrorDatos.
    void comprobarEntera();
    /// The same, and every row, as of one moment (Danados.h).
    void comprobarTodo();
    /// That no entry of the index of DNIs hides a declarant, unless that has been seen; throws
    /// ErrorDatos. Asked before one is said not to exist, and before the first write: two of one
    /// DNI.
    void comprobarDnis();
    /// Room for the pages of a work over the whole of a large database, or the usual one.
    enum class Paginas { Usuales, Muchas };
    void paginas(Paginas cuantas);
    qint32 ultimaClave() const { return static_cast<qint32>(m_base.getLastInsertRowid()); }

    /// A prepared statement, taken out of the store until it is given back.
    std::unique_ptr<SQLite::Statement> tomar(std::string_view sql);
    void devolver(std::unique_ptr<SQLite::Statement> sentencia);

private:
    static PConexion de(const QString &ruta, const Formato &formato);

    QString m_ruta;
    Identidad m_identidad;
    qint32 m_aplicacion;
    SQLite::Database m_base;
    bool m_entera = false, m_dnis = false;
    std::map<std::string, std::unique_ptr<SQLite::Statement>, std::less<>> m_sentencias;
};

/// Runs `f`, turning SQLite errors into ErrorDatos about the connection's file. After an error of
/// the file the connection is given up, so that the next call starts from what is there then.
template <class F> decltype(auto) conErroresDe(const Conexion &conexion, F &&f)
{
    try {
        return conErrores(conexion.ruta(), std::forward<F>(f));
    } catch (const ErrorDatos &error) {
        if (error.fallo() != Fallo::EnUso && error.fallo() != Fallo::Restriccion
            && error.fallo() != Fallo::TieneDeclaraciones)
            Conexion::olvidar(conexion.ruta());
        throw;
    }
}

/// Everything until confirmar() happens wholly or not at all.
class Transaccion
{
public:
    explicit Transaccion(PConexion conexion);
    ~Transaccion();
    Transaccion(const Transaccion &) = delete;
    Transaccion &operator=(const Transaccion &) = delete;

    /// On disk when this returns. After an error of which the outcome is unknown the file decides.
    void confirmar();
    const PConexion &conexion() const { return m_conexion; }

private:
    PConexion m_conexion;
};

/// While it lives, what is read is one state of the database, and a look-up takes no lock of its
/// own.
class LecturaUnica
{
public:
    explicit LecturaUnica(PConexion conexion);
    ~LecturaUnica();
    LecturaUnica(const LecturaUnica &) = delete;
    LecturaUnica &operator=(const LecturaUnica &) = delete;

private:
    PConexion m_conexion;
    bool m_abierta;
};

} // namespace servidor
