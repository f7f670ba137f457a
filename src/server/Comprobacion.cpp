#include "server/Comprobacion.h"

#include "server/Diario.h"
#include "server/FicherosBase.h"
#include "server/Prueba.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <SQLiteCpp/Statement.h>
#include <cerrno>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

// A write refused by a quota or a size limit reaches us as a plain I/O error; only the system's own
// code tells that it is the room that is missing.
bool faltaEspacio(int codigoSistema)
{
    return falloDeSistema(codigoSistema) == Fallo::SinEspacio;
}

// An error that hides the system's reason: what making another file there comes to tells it.
Fallo sinPoderEscribir(int codigoSistema, const QString &ruta, Fallo siSePuede)
{
    return faltaEspacio(codigoSistema) ? Fallo::SinEspacio : falloAlCrear(ruta).value_or(siSePuede);
}

Fallo clasificar(const SQLite::Exception &error, int codigoSistema, const QString &ruta)
{
    switch (error.getExtendedErrorCode()) {
    case SQLITE_CONSTRAINT_FOREIGNKEY: // the only rows that others depend on are declarants
        return Fallo::TieneDeclaraciones;
    case SQLITE_IOERR_READ:
    case SQLITE_IOERR_SHORT_READ:
    case SQLITE_IOERR_CORRUPTFS:
        return Fallo::Lectura;
    default:
        break;
    }
    switch (error.getErrorCode() & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Fallo::EnUso;
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
        return Fallo::Restriccion;
    case SQLITE_ERROR: // our statements are right, so that it is the table or column that is
                       // missing
        return Fallo::Incompleta;
    case SQLITE_FULL:
        return Fallo::SinEspacio;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return sinPoderEscribir(codigoSistema, ruta, Fallo::SoloLectura);
    case SQLITE_CANTOPEN: // the file itself is known to be there: its journal cannot be made
        return sinPoderEscribir(codigoSistema, ruta, Fallo::LecturaEscritura);
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
    return ErrorDatos(clasificar(error, sistema, ruta), ruta, QString::fromUtf8(error.what()));
}

namespace {

constexpr qsizetype TamanoCabecera = 100;

quint32 numero32(const QByteArray &cabecera, qsizetype posicion)
{
    return qFromBigEndian<quint32>(cabecera.constData() + posicion);
}

qint64 tamanoDeclarado(const QByteArray &cabecera)
{
    const auto pagina = qFromBigEndian<quint16>(cabecera.constData() + 16);
    const qint64 bytes = pagina == 1 ? 65536 : pagina; // 65536 does not fit in its two bytes
    return bytes * numero32(cabecera, 28);
}

QByteArray leerCabecera(const QString &ruta)
{
    rechazarEnlaceRoto(ruta);
    if (!identidad(ruta))
        throw ErrorDatos(QFileInfo::exists(ruta) ? Fallo::NoEsFichero : Fallo::NoExiste, ruta,
                         u"no such file"_s);
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        throw ErrorDatos(Fallo::Lectura, ruta, fichero.errorString());
    QByteArray cabecera = fichero.read(TamanoCabecera);
    if (fichero.error() != QFileDevice::NoError)
        throw ErrorDatos(Fallo::Lectura, ruta, fichero.errorString());
    return cabecera;
}

void comprobarVersion(qint32 actual, const Formato &formato, Version version, const QString &ruta)
{
    const auto detalle = u"schema %1"_s.arg(actual);
    if (actual > formato.esquema)
        throw ErrorDatos(Fallo::MasNueva, ruta, detalle);
    if (actual < 1 || (version == Version::Actual && actual < formato.esquema))
        throw ErrorDatos(Fallo::Danada, ruta, detalle);
}

// SQLite's check tells a page that it could not read like one that is wrong, but for the code.
bool esDeLectura(const QString &resultado)
{
    static const QRegularExpression codigo(u"error code=(\\d+)"_s);
    return (codigo.match(resultado).captured(1).toInt() & 0xff) == SQLITE_IOERR;
}

} // namespace

qint32 comprobarCabecera(const QString &ruta, const Formato &formato, Version version)
{
    const QByteArray cabecera = leerCabecera(ruta);
    if (cabecera.size() < TamanoCabecera
        || !cabecera.startsWith(QByteArray("SQLite format 3\0", 16)))
        throw ErrorDatos(Fallo::Danada, ruta, u"not a database"_s);
    if (static_cast<qint32>(numero32(cabecera, 68)) != formato.aplicacion)
        throw ErrorDatos(Fallo::Ajena, ruta, u"application_id"_s);
    const auto esquema = static_cast<qint32>(numero32(cabecera, 60));
    comprobarVersion(esquema, formato, version, ruta);
    if (!tieneDiario(ruta) && QFileInfo(ruta).size() < tamanoDeclarado(cabecera))
        throw ErrorDatos(Fallo::Danada, ruta, u"truncated"_s);
    return esquema;
}

void comprobarContenido(SQLite::Database &base, const QString &ruta, const char *comprobacion)
{
    conErrores(ruta, [&] {
        SQLite::Statement sentencia(base, comprobacion);
        sentencia.executeStep();
        const QString resultado = QString::fromStdString(sentencia.getColumn(0).getString());
        if (resultado != u"ok")
            throw ErrorDatos(esDeLectura(resultado) ? Fallo::Lectura : Fallo::Danada, ruta,
                             resultado);
    });
}

SQLite::Database abrir(const QString &ruta, const Formato &formato, Version version)
{
    comprobarCabecera(ruta, formato, version);
    if (tieneDiario(ruta))
        resolverDiario(ruta);
    apartarRegistroAjeno(ruta);
    return conErrores(ruta, [&] {
        const int modo = formato.soloLectura ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
        // one thread alone uses it: no lock at each of SQLite's calls
        SQLite::Database base(ruta.toStdString(), modo | SQLite::OPEN_NOMUTEX, EsperaMs);
        registrarPrueba(base);
        return base;
    });
}

SQLite::Database abrirComprobada(const QString &ruta, const Formato &formato, Version version)
{
    auto base = abrir(ruta, formato, version);
    comprobarContenido(base, ruta);
    return base;
}

} // namespace servidor
