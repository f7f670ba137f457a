#include "core/GuardarFichero.h"

#include "core/Rutas.h"
#include "core/Textos.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#else
#include <io.h>
#endif

static QString motivo(Msj cual, const QString &ruta)
{
    return msj(cual, QDir::toNativeSeparators(ruta));
}

/// Puts what was written on the disk for good; where that cannot be asked for, it is not missed.
static bool sincronizado(int descriptor)
{
#ifdef Q_OS_UNIX
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
#else
    return ::_commit(descriptor) == 0;
#endif
}

/// Whether the file is whole under its name; asked where its folder could not be made safe.
static bool estaEnDisco(const QString &ruta, const QByteArray &contenido)
{
    QFile escrito(ruta);
    return escrito.open(QIODevice::ReadOnly) && escrito.readAll() == contenido;
}

static bool carpetaSincronizada([[maybe_unused]] const QString &carpeta)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_CLOEXEC);
    const bool bien = descriptor >= 0 && sincronizado(descriptor);
    if (descriptor >= 0)
        ::close(descriptor);
    return bien;
#else
    return true;
#endif
}

QString guardarFichero(const QString &ruta, const QByteArray &contenido)
{
    if (const QString rechazo = motivoRutaRechazada(ruta); !rechazo.isEmpty())
        return rechazo;
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo::exists(carpeta))
        return motivo(Msj::FalloNoExiste, carpeta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly))
        return motivo(Msj::FalloSoloLectura, ruta);
    const bool escrito = fichero.write(contenido) == contenido.size() && fichero.flush()
        && sincronizado(fichero.handle()) && fichero.commit();
    if (escrito && (carpetaSincronizada(carpeta) || estaEnDisco(ruta, contenido)))
        return {};
    const bool sinEspacio = fichero.error() == QFileDevice::ResourceError
        || QStorageInfo(carpeta).bytesAvailable() < contenido.size();
    return motivo(sinEspacio ? Msj::FalloSinEspacio : Msj::FalloLecturaEscritura, ruta);
}
