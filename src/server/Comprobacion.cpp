#include "server/Comprobacion.h"

#include "server/FicherosBase.h"

#include <QFile>
#include <QFileInfo>
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
    if (!identidad(ruta))
        throw ErrorDatos(Fallo::NoExiste, ruta, u"no such file"_s);
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        throw ErrorDatos(Fallo::LecturaEscritura, ruta, fichero.errorString());
    return fichero.read(TamanoCabecera);
}

// With a journal beside it the file may be half-way through a commit that SQLite is about to undo.
bool tieneDiario(const QString &ruta)
{
    return QFileInfo(ruta + u"-journal"_s).size() > 0;
}

void comprobarVersion(qint32 actual, const Formato &formato, Version version, const QString &ruta)
{
    const auto detalle = u"schema %1"_s.arg(actual);
    if (actual > formato.esquema)
        throw ErrorDatos(Fallo::MasNueva, ruta, detalle);
    if (actual < 1 || (version == Version::Actual && actual < formato.esquema))
        throw ErrorDatos(Fallo::Danada, ruta, detalle);
}

void comprobarContenido(SQLite::Database &base, const QString &ruta)
{
    SQLite::Statement sentencia(base, "PRAGMA quick_check(1)");
    sentencia.executeStep();
    const std::string resultado = sentencia.getColumn(0).getString();
    if (resultado != "ok")
        throw ErrorDatos(Fallo::Danada, ruta, QString::fromStdString(resultado));
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

SQLite::Database abrirComprobada(const QString &ruta, const Formato &formato, Version version)
{
    comprobarCabecera(ruta, formato, version);
    return conErrores(ruta, [&] {
        const int modo = formato.soloLectura ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
        SQLite::Database base(ruta.toStdString(), modo, EsperaMs);
        comprobarContenido(base, ruta);
        return base;
    });
}

} // namespace servidor
