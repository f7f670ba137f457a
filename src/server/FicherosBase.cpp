#include "server/FicherosBase.h"

#include "dataservice/ErrorDatos.h"
#include "server/Comprobacion.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <SQLiteCpp/Backup.h>
#include <cerrno>
#include <filesystem>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fcntl.h>
#include <io.h>
#endif

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

#ifdef Q_OS_UNIX
void sincronizar(const QString &ruta)
{
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_CLOEXEC);
    const bool bien = fd >= 0 && ::fsync(fd) == 0;
    const int codigo = errno;
    if (fd >= 0)
        ::close(fd);
    if (!bien)
        throw ErrorDatos(falloDeSistema(codigo), ruta, u"sync failed"_s);
}

// The file is in its place already: that the folder could not be synced makes it no failure.
void sincronizarCarpeta(const QString &ruta)
{
    try {
        sincronizar(QFileInfo(ruta).absolutePath());
    } catch (const ErrorDatos &) {
    }
}
#else
void sincronizar(const QString &ruta)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadWrite) || _commit(fichero.handle()) != 0)
        throw ErrorDatos(Fallo::LecturaEscritura, ruta, u"sync failed"_s);
}

void sincronizarCarpeta(const QString &) {}
#endif

} // namespace

#ifdef Q_OS_UNIX
std::optional<Identidad> identidad(const QString &ruta)
{
    struct stat datos;
    if (::stat(QFile::encodeName(ruta).constData(), &datos) != 0 || !S_ISREG(datos.st_mode))
        return {};
    return Identidad{datos.st_dev, datos.st_ino};
}
#else
// An open database cannot be replaced here, so that being there is enough.
std::optional<Identidad> identidad(const QString &ruta)
{
    return QFileInfo(ruta).isFile() ? std::optional(Identidad{}) : std::nullopt;
}
#endif

namespace {

// Left behind by runs that were cut short; what is younger may be another program's.
void retirarRestos(const QString &destino)
{
    const QFileInfo fichero(destino);
    const QDateTime limite = QDateTime::currentDateTime().addSecs(-3600);
    const auto restos
        = fichero.dir().entryInfoList({fichero.fileName() + u".nuevo*"_s}, QDir::Files);
    for (const QFileInfo &resto : restos)
        if (resto.lastModified() < limite)
            QFile::remove(resto.filePath());
}

QString unica(const QString &ruta)
{
    return ruta + u".nuevo-"_s + QUuid::createUuid().toString(QUuid::Id128);
}

#ifdef Q_OS_UNIX
// Where the file system has no second names, the moment between looking and renaming stays open.
std::error_code renombrarSiVacio(const QString &origen, const QString &destino)
{
    std::error_code error;
    std::filesystem::create_hard_link(origen.toStdU16String(), destino.toStdU16String(), error);
    if (error && error != std::errc::file_exists && !QFileInfo::exists(destino))
        std::filesystem::rename(origen.toStdU16String(), destino.toStdU16String(), error);
    return error;
}
#else
std::error_code renombrarSiVacio(const QString &origen, const QString &destino)
{
    const bool bien = ::_wrename(reinterpret_cast<const wchar_t *>(origen.utf16()),
                                 reinterpret_cast<const wchar_t *>(destino.utf16()))
        == 0;
    return {bien ? 0 : errno, std::generic_category()};
}
#endif

} // namespace

Provisional::Provisional(const QString &destino)
    : m_destino(destino)
    , m_ruta(unica(destino))
{
    retirarRestos(destino);
}

Provisional::~Provisional()
{
    QFile::remove(m_ruta);
}

void Provisional::preparar() const
{
    try {
        sincronizar(m_ruta);
    } catch (const ErrorDatos &error) { // of a name that nobody else knows
        throw ErrorDatos(error.fallo(), m_destino, QString::fromUtf8(error.what()));
    }
    if (!QFile::exists(m_destino))
        for (const QString &resto : ajenos())
            apartar(resto);
}

// SQLite would read what an earlier file of that name left behind into the new one.
QStringList Provisional::ajenos() const
{
    QStringList hallados{m_destino + u"-journal"_s, m_destino + u"-wal"_s};
    hallados.removeIf([](const QString &ruta) { return !QFile::exists(ruta); });
    return hallados;
}

void Provisional::colocar()
{
    preparar();
    const QStringList delAnterior = ajenos(); // it may need them until it is replaced
    renombrar(m_ruta, m_destino);
    for (const QString &resto : delAnterior)
        apartar(resto);
}

bool Provisional::colocarSiVacio()
{
    preparar();
    const std::error_code error = renombrarSiVacio(m_ruta, m_destino);
    if (error == std::errc::file_exists)
        return false;
    if (error)
        throw ErrorDatos(falloDeSistema(error.value()), m_destino, u"rename failed"_s);
    QFile::remove(m_ruta);
    sincronizarCarpeta(m_destino);
    return true;
}

std::optional<Fallo> falloAlCrear(const QString &ruta)
{
    const QByteArray prueba = QFile::encodeName(unica(ruta));
    errno = 0;
    QFile fichero(QString::fromUtf8(prueba));
    if (fichero.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        fichero.remove();
        return {};
    }
    return falloDeSistema(errno);
}

QString nombreApartado(const QString &ruta)
{
    return ruta + QDateTime::currentDateTime().toString(u".yyyyMMddHHmmsszzz");
}

void apartar(const QString &resto)
{
    renombrar(resto, nombreApartado(resto));
}

void rechazarEnlaceRoto(const QString &ruta)
{
    if (QFileInfo(ruta).isSymLink() && !QFileInfo::exists(ruta))
        throw ErrorDatos(Fallo::EnlaceRoto, ruta, u"dangling link"_s);
}

void renombrar(const QString &origen, const QString &destino)
{
    std::error_code error;
    std::filesystem::rename(origen.toStdU16String(), destino.toStdU16String(), error);
    if (error)
        throw ErrorDatos(falloDeSistema(error.value()), destino, u"rename failed"_s);
    sincronizarCarpeta(destino);
}

void crearCarpeta(const QString &carpeta)
{
    rechazarEnlaceRoto(QDir::cleanPath(carpeta));
    std::error_code error;
    std::filesystem::create_directories(QDir::cleanPath(carpeta).toStdU16String(), error);
    if (error)
        throw ErrorDatos(falloDeSistema(error.value()), carpeta, u"cannot create folder"_s);
}

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

bool crearFichero(const QString &ruta, const Formato &formato, Lugar lugar,
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
    if (lugar == Lugar::Vacio)
        return provisional.colocarSiVacio();
    provisional.colocar();
    return true;
}

void copiarFichero(SQLite::Database &origen, const QString &destino,
                   const std::function<void()> &antes)
{
    Provisional provisional(destino);
    conErrores(destino, [&] {
        auto base = abrirNueva(provisional.ruta());
        copiarContenido(origen, base, destino);
    });
    conErrores(destino, [&] {
        SQLite::Database copia(provisional.ruta().toStdString(), SQLite::OPEN_READONLY);
        comprobarContenido(copia, destino);
    });
    if (antes)
        antes();
    provisional.colocar();
}

void copiarContenido(SQLite::Database &origen, SQLite::Database &destino, const QString &ruta)
{
    conErrores(ruta, [&] {
        SQLite::Backup copia(destino, origen);
        int resultado = SQLITE_OK;
        try {
            resultado = copia.executeStep();
        } catch (const SQLite::Exception &error) {
            throw traducir(error, ruta); // now: closing changes the system's error code
        }
        if (resultado != SQLITE_DONE) // "busy" and "locked" come back as results
            throw SQLite::Exception("copy not finished", resultado);
    });
}

} // namespace servidor
