#include "core/GuardarFichero.h"

#include "core/Rutas.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"

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

bool sincronizado(int descriptor)
{
#ifdef Q_OS_UNIX
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
#else
    return ::_commit(descriptor) == 0;
#endif
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

bool escribirEntero(QIODevice &destino, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 escritos = destino.write(bytes.data(), bytes.size());
        if (escritos <= 0)
            return false;
        bytes = bytes.sliced(escritos);
    }
    return true;
}

QString guardarFichero(const QString &ruta, const QByteArray &contenido, bool *lleno)
{
    bool entero = true;
    const QString fallo = guardarFichero(
        ruta, [&](QFileDevice &f) { return entero = escribirEntero(f, contenido); }, lleno);
    return entero || !fallo.isEmpty() ? fallo : motivo(Msj::FalloLecturaEscritura, ruta);
}

QString guardarFichero(const QString &ruta, const Escritura &escribir, bool *lleno)
{
    if (QString rechazo = motivoRutaRechazada(ruta); !rechazo.isEmpty())
        return rechazo;
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo::exists(carpeta))
        return motivo(Msj::FalloNoExiste, carpeta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly)) {
        const bool intentado = fichero.error() == QFileDevice::OpenError;
        const Fallo fallo = intentado ? falloDeSistema(errno) : Fallo::SoloLectura;
        return textoFallo(ErrorDatos(fallo, ruta));
    }
    errno = 0;
    const bool acabado = escribir(fichero);
    if (!acabado && fichero.error() == QFileDevice::NoError)
        return {};
    const qint64 escritos = fichero.pos();
    const bool guardado
        = acabado && fichero.flush() && sincronizado(fichero.handle()) && fichero.commit();
    // where its folder could not be made safe, the file is looked for under its name
    if (guardado && (carpetaSincronizada(carpeta) || QFileInfo(ruta).size() == escritos))
        return {};
    const bool sinEspacio = falloDeSistema(errno) == Fallo::SinEspacio
        || fichero.error() == QFileDevice::ResourceError
        || QStorageInfo(carpeta).bytesAvailable() < escritos;
    if (lleno)
        *lleno = sinEspacio;
    return motivo(sinEspacio ? Msj::FalloSinEspacio : Msj::FalloLecturaEscritura, ruta);
}
