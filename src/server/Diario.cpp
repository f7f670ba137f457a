#include "server/Diario.h"

#include "server/Comprobacion.h"
#include "server/FicherosBase.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <SQLiteCpp/Statement.h>
#include <optional>
#include <sqlite3.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

// Beside the file itself, where the path is a link to it.
QString juntoA(const QString &ruta, const QString &sufijo)
{
    const QString real = QFileInfo(ruta).canonicalFilePath();
    return (real.isEmpty() ? ruta : real) + sufijo;
}

QString diarioDe(const QString &ruta)
{
    return juntoA(ruta, u"-journal"_s);
}

// Asked of SQLite, whose own locks a file opened and closed here would drop.
bool hayEscritura(const QString &ruta)
{
    auto *vfs = sqlite3_vfs_find(nullptr);
    std::vector<std::byte> memoria(static_cast<std::size_t>(vfs->szOsFile));
    auto *fichero = reinterpret_cast<sqlite3_file *>(memoria.data());
    const QByteArray nombre = ruta.toUtf8() + QByteArray(3, '\0'); // SQLite reads on after the name
    if (vfs->xOpen(vfs, nombre.constData(), fichero, SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB,
                   nullptr)
        != SQLITE_OK)
        return false;
    int reservado = 0;
    fichero->pMethods->xCheckReservedLock(fichero, &reservado);
    fichero->pMethods->xClose(fichero);
    return reservado != 0;
}

// How often the file had been changed, which its header counts at byte 24.
quint32 cambios(const QByteArray &pagina)
{
    return pagina.size() < 28 ? 0 : qFromBigEndian<quint32>(pagina.constData() + 24);
}

// That count as the journal keeps it, in what the first page was before.
std::optional<quint32> cambiosDelDiario(const QString &ruta)
{
    QFile diario(diarioDe(ruta));
    if (!diario.open(QIODevice::ReadOnly))
        return {};
    const QByteArray cabecera = diario.read(28);
    if (cabecera.size() < 28)
        return {};
    const auto sector = qFromBigEndian<quint32>(cabecera.constData() + 20);
    const auto pagina = qFromBigEndian<quint32>(cabecera.constData() + 24);
    if (sector < 28 || pagina < 512 || pagina > 65536)
        return {};
    for (qint64 lugar = sector; diario.seek(lugar); lugar += qint64(pagina) + 8) {
        const QByteArray registro = diario.read(4 + 28);
        if (registro.size() < 4 + 28)
            return {};
        if (qFromBigEndian<quint32>(registro.constData()) == 1)
            return cambios(registro.mid(4));
    }
    return {};
}

// A crash leaves the file as it was when the journal was begun, or one change further.
bool esDeOtroFichero(const QString &ruta)
{
    QFile fichero(ruta);
    const auto antes = cambiosDelDiario(ruta);
    if (!antes || !fichero.open(QIODevice::ReadOnly))
        return false;
    const quint32 ahora = cambios(fichero.read(28));
    return ahora != *antes && ahora != *antes + 1;
}

bool entera(const QString &ruta, const char *comprobacion, const char *bien)
{
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Statement sentencia(base, comprobacion);
    return sentencia.executeStep() ? sentencia.getColumn(0).getString() == bien : *bien == '\0';
}

bool copiaEntera(const QString &ruta, bool conDiario)
{
    const QTemporaryDir carpeta;
    const QString copia = carpeta.filePath(u"copia"_s);
    if (!QFile::copy(ruta, copia) || (conDiario && !QFile::copy(diarioDe(ruta), diarioDe(copia))))
        throw ErrorDatos(Fallo::SinEspacio, copia, u"cannot copy"_s);
    for (const QString &fichero : {copia, diarioDe(copia)})
        QFile::setPermissions(fichero, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    try {
        return entera(copia, "PRAGMA integrity_check(1)", "ok")
            && entera(copia, "PRAGMA foreign_key_check", "");
    } catch (const SQLite::Exception &) {
        return false;
    }
}

// Through SQLite's own file: another one, closed again, would drop SQLite's locks.
quint32 cambios(SQLite::Database &base)
{
    sqlite3_file *fichero = nullptr;
    sqlite3_file_control(base.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &fichero);
    QByteArray pagina(28, 0);
    if (fichero && fichero->pMethods)
        fichero->pMethods->xRead(fichero, pagina.data(), 28, 0);
    return cambios(pagina);
}

} // namespace

bool tieneDiario(const QString &ruta)
{
    return QFileInfo(diarioDe(ruta)).size() > 0;
}

void resolverDiario(const QString &ruta)
{
    if (hayEscritura(ruta) || (!esDeOtroFichero(ruta) && copiaEntera(ruta, true)))
        return;
    if (!copiaEntera(ruta, false))
        throw ErrorDatos(Fallo::Danada, ruta, u"its journal does not make it whole"_s);
    apartar(diarioDe(ruta));
}

void apartarRegistroAjeno(const QString &ruta)
{
    constexpr qsizetype Version = 18; // 1 with a journal, 2 with a log
    const QString registro = juntoA(ruta, u"-wal"_s);
    if (QFileInfo(registro).size() == 0)
        return;
    QFile fichero(ruta);
    if (fichero.open(QIODevice::ReadOnly) && fichero.read(Version + 1).endsWith('\1'))
        apartar(registro);
}

void terminarCambio(SQLite::Database &base, const QString &ruta, const std::function<void()> &f)
{
    const quint32 antes = cambios(base);
    try {
        f();
    } catch (const ErrorDatos &) {
        const bool hecho = sqlite3_get_autocommit(base.getHandle()) != 0
            && cambios(base) == antes + 1 && !tieneDiario(ruta);
        if (!hecho)
            throw;
    }
}

} // namespace servidor
