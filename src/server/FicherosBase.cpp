#include "server/FicherosBase.h"

#include "dataservice/ErrorDatos.h"
#include "server/Comprobacion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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

Fallo falloDeSistema(int codigo)
{
    switch (codigo) {
    case ENOSPC:
    case EFBIG:
        return Fallo::SinEspacio;
    case EACCES:
    case EPERM:
    case EROFS:
        return Fallo::SoloLectura;
    case ENOENT:
        return Fallo::NoExiste;
    default:
        return Fallo::LecturaEscritura;
    }
}

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

void sincronizarCarpeta(const QString &ruta)
{
    sincronizar(QFileInfo(ruta).absolutePath());
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

Provisional::Provisional(const QString &destino)
    : m_destino(destino)
    , m_ruta(destino + u".nuevo"_s)
{
    QFile::remove(m_ruta); // left behind by a run that was cut short
}

Provisional::~Provisional()
{
    QFile::remove(m_ruta);
}

void Provisional::colocar()
{
    sincronizar(m_ruta);
    // SQLite would replay a journal left behind by an earlier file of that name into the new one.
    const QString diario = m_destino + u"-journal"_s;
    if (QFile::exists(diario))
        renombrar(diario, diario + u".apartado"_s);
    renombrar(m_ruta, m_destino);
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
    if (!QDir().mkpath(carpeta))
        throw ErrorDatos(Fallo::SoloLectura, carpeta, u"cannot create folder"_s);
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
