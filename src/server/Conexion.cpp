#include "server/Conexion.h"

#include "server/Comprobacion.h"
#include "server/Danados.h"
#include "server/Diario.h"
#include "server/Sentencia.h"

#include <QHash>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

QHash<QString, PConexion> &abiertas()
{
    static QHash<QString, PConexion> conexiones;
    return conexiones;
}

// EXTRA: the removal of the journal is what commits, and it too has to survive a power cut.
// 16 MiB of pages: a transaction of 5,000 declarants is written once, at its end.
constexpr const char *Ajustes
    = "PRAGMA foreign_keys = ON; PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA;"
      "PRAGMA cache_size = -16384";

} // namespace

Conexion::Conexion(const QString &ruta, const Formato &formato)
    : m_ruta(ruta)
    , m_identidad(identidad(ruta).value_or(Identidad{}))
    , m_aplicacion(formato.aplicacion)
    , m_base(abrir(ruta, formato))
{
    conErrores(ruta, [&] { m_base.exec(Ajustes); });
}

PConexion Conexion::de(const QString &ruta, const Formato &formato)
{
    PConexion abierta = abiertas().value(ruta);
    if (abierta && abierta->m_identidad == identidad(ruta)
        && abierta->m_aplicacion == formato.aplicacion)
        return abierta;
    olvidar(ruta);
    return abiertas()[ruta] = std::make_shared<Conexion>(ruta, formato);
}

void Conexion::olvidar(const QString &ruta)
{
    abiertas().remove(ruta);
}

void Conexion::paginas(Paginas cuantas)
{
    m_base.tryExec(cuantas == Paginas::Muchas ? "PRAGMA cache_size = -49152"
                                              : "PRAGMA cache_size = -16384");
}

bool Conexion::enTransaccion() const
{
    return sqlite3_get_autocommit(m_base.getHandle()) == 0;
}

bool Conexion::soloLectura() const
{
    return sqlite3_db_readonly(m_base.getHandle(), "main") == 1;
}

void Conexion::comprobarEntera()
{
    if (!m_entera)
        conErroresDe(*this, [this] { comprobarContenido(m_base, m_ruta); });
    m_entera = true;
}

void Conexion::comprobarTodo()
{
    comprobarEntera();
    const LecturaUnica vista(shared_from_this());
    comprobarFilas(m_base, m_ruta);
}

void Conexion::comprobarDnis()
{
    if (!m_dnis)
        conErroresDe(*this, [this] { servidor::comprobarDnis(m_base, m_ruta); });
    m_dnis = true;
}

std::unique_ptr<SQLite::Statement> Conexion::tomar(std::string_view sql)
{
    const auto hallada = m_sentencias.find(sql);
    if (hallada != m_sentencias.end() && hallada->second)
        return std::move(hallada->second);
    return conErroresDe(
        *this, [&] { return std::make_unique<SQLite::Statement>(m_base, std::string(sql)); });
}

void Conexion::devolver(std::unique_ptr<SQLite::Statement> sentencia)
{
    sentencia->tryReset();
    sentencia->clearBindings(); // to texts that may be gone by the next use
    m_sentencias[sentencia->getQuery()] = std::move(sentencia);
}

Transaccion::Transaccion(PConexion conexion)
    : m_conexion(std::move(conexion))
{
    if (m_conexion->enTransaccion())
        throw ErrorDatos(Fallo::EnUso, m_conexion->ruta(), u"deletion not finished"_s);
    if (m_conexion->soloLectura()) { // it may have become writable
        Conexion::olvidar(m_conexion->ruta());
        m_conexion = Conexion::datos(m_conexion->ruta());
    }
    m_conexion->comprobarEntera();
    m_conexion->comprobarDnis();
    Sentencia(m_conexion, "BEGIN IMMEDIATE").ejecutar();
}

Transaccion::~Transaccion()
{
    // SQLite has undone it already after some errors, and there is nothing to do about a failure.
    if (m_conexion->enTransaccion())
        m_conexion->base().tryExec("ROLLBACK");
}

void Transaccion::confirmar()
{
    terminarCambio(m_conexion->base(), m_conexion->ruta(),
                   [this] { Sentencia(m_conexion, "COMMIT").ejecutar(); });
}

LecturaUnica::LecturaUnica(PConexion conexion)
    : m_conexion(std::move(conexion))
    , m_abierta(!m_conexion->enTransaccion())
{
    if (m_abierta)
        Sentencia(m_conexion, "BEGIN").ejecutar();
}

LecturaUnica::~LecturaUnica()
{
    if (m_abierta)
        m_conexion->base().tryExec("COMMIT");
}

} // namespace servidor
