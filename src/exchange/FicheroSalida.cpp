#include "exchange/FicheroSalida.h"

#include "core/GuardarFichero.h"
#include "dataservice/ErrorDatos.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

static constexpr qsizetype Bloque = 65'536;

static ErrorDatos errorDe(const QFile &fichero)
{
    const int codigo = errno;
    const QString carpeta = QFileInfo(fichero.fileName()).absolutePath();
    if (!fichero.fileName().isEmpty() && !QFileInfo::exists(carpeta))
        return ErrorDatos(Fallo::NoExiste, carpeta);
    return ErrorDatos(falloDeSistema(codigo),
                      fichero.fileName().isEmpty() ? u"-"_s : fichero.fileName(),
                      fichero.errorString());
}

static void apartar(const QString &ruta)
{
    const QFileInfo ahi(ruta);
    if ((ahi.exists() || ahi.isSymLink()) && !QFile::remove(ruta))
        throw ErrorDatos(Fallo::SoloLectura, ruta, u"cannot be removed"_s);
}

FicheroSalida::FicheroSalida(const QString &ruta, Modo modo)
    : m_fichero(ruta)
{
    if (modo == EnSuLugar)
        apartar(ruta);
    const auto comienzo = modo == EnSuLugar ? QIODevice::NewOnly : QIODevice::Truncate;
    if (!m_fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered | comienzo))
        throw errorDe(m_fichero);
}

FicheroSalida::FicheroSalida()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    if (!m_fichero.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw errorDe(m_fichero);
}

void FicheroSalida::escribir(QByteArrayView lineas)
{
    m_pendiente += lineas;
    if (m_pendiente.size() >= Bloque)
        terminar();
}

/// Half a line would be read as a faulty one.
void FicheroSalida::fallar(qsizetype escritos)
{
    const ErrorDatos error = errorDe(m_fichero);
    const qsizetype enteras = m_pendiente.first(escritos).lastIndexOf('\n') + 1;
    if (!m_fichero.isSequential())
        m_fichero.resize(m_fichero.pos() - escritos + enteras);
    m_lineas += m_pendiente.first(enteras).count('\n');
    m_pendiente.clear();
    throw error;
}

void FicheroSalida::asegurar()
{
    if (!m_fichero.isSequential() && !sincronizado(m_fichero.handle()))
        throw errorDe(m_fichero);
}

void FicheroSalida::terminar()
{
    qsizetype escritos = 0;
    while (escritos < m_pendiente.size()) {
        const qint64 n
            = m_fichero.write(m_pendiente.constData() + escritos, m_pendiente.size() - escritos);
        if (n <= 0)
            fallar(escritos);
        escritos += n;
    }
    m_lineas += m_pendiente.count('\n');
    m_pendiente.truncate(0);
}
