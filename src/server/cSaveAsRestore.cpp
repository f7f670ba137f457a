#include "server/cSaveAsRestore.h"

#include "server/Comprobacion.h"
#include "server/CopiaElegida.h"
#include "server/CopiasAnteriores.h"
#include "server/Diario.h"
#include "server/FicherosBase.h"
#include "server/Sentencia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr int CopiasPorOmision = 5;

QString unir(const QString &carpeta, const QString &archivo)
{
    return QDir::cleanPath(QDir(QDir::fromNativeSeparators(carpeta)).filePath(archivo));
}

// Nothing when the file is missing or no database that this program can write into.
std::optional<SQLite::Database> abrirSiSirve(const QString &ruta)
{
    try {
        return abrirComprobada(ruta, FormatoDatos, Version::ActualOMenor);
    } catch (const ErrorDatos &error) {
        switch (error.fallo()) {
        case Fallo::NoExiste:
        case Fallo::Danada:
        case Fallo::Ajena:
        case Fallo::MasNueva:
            return {};
        default:
            throw;
        }
    }
}

// A file that cannot be used is never destroyed: it keeps another name, its journal with it.
QString apartarBase(const QString &ruta)
{
    if (!QFile::exists(ruta))
        return {};
    QString nombre = nombreApartado(ruta);
    conservarComo(ruta, nombre);
    if (QFile::exists(ruta + u"-journal"_s))
        renombrar(ruta + u"-journal"_s, nombre + u"-journal"_s);
    return nombre;
}

std::optional<ResumenBase> resumenDe(const QString &ruta)
{
    auto base = abrirSiSirve(ruta);
    return base ? std::optional(resumir(*base, ruta)) : std::nullopt;
}

} // namespace

QString cSaveAsRestore::origen() const
{
    return unir(m_rutaOrigen, m_archivoOrigen);
}

QString cSaveAsRestore::destino() const
{
    return unir(m_rutaDestino, m_archivoDestino);
}

// A backup matters more than how many old ones are kept: without that figure it is made all the
// same.
int cSaveAsRestore::copiasAnteriores() const
{
    if (m_tabla != u"T08_GENERAL" || m_campo != u"T08_BACKUP_TVC")
        return CopiasPorOmision;
    try {
        Sentencia sentencia(Conexion::lectura(m_lectura), "SELECT T08_BACKUP_TVC FROM T08_GENERAL");
        return sentencia.fila() ? sentencia.clave(0) : CopiasPorOmision;
    } catch (const ErrorDatos &) {
        return CopiasPorOmision;
    }
}

/// "archivos mdb (*.mdb;*.mdb)|*.mdb;mdb": a text and patterns, some without their asterisk.
QString cSaveAsRestore::filtroDialogo() const
{
    QStringList patrones;
    for (QString patron : m_filtro.section(u'|', 1).split(u';', Qt::SkipEmptyParts)) {
        if (!patron.contains(u'*'))
            patron.prepend(u"*."_s);
        if (!patrones.contains(patron))
            patrones.append(patron);
    }
    const QString texto = m_filtro.section(u'|', 0, 0).section(u'(', 0, 0).trimmed();
    return patrones.isEmpty() ? QString() : texto + u" ("_s + patrones.join(u' ') + u')';
}

bool cSaveAsRestore::atender(Dialogos::Trabajo trabajo, const std::function<bool()> &hacer)
{
    if (!m_dialogos)
        return hacer();
    try {
        return hacer();
    } catch (const ErrorDatos &error) {
        m_dialogos->fallo(trabajo, error, m_padre);
        return false;
    }
}

void cSaveAsRestore::CrearBackup()
{
    atender(Dialogos::Trabajo::Copia, [this] {
        const PConexion datos = Conexion::datos(origen());
        datos->comprobarTodo();
        crearCarpeta(QFileInfo(destino()).path());
        copiarFichero(datos->base(), destino(),
                      [this] { conservarAnterior(destino(), copiasAnteriores()); });
        const QFileInfo hecha(destino());
        if (m_dialogos)
            m_dialogos->copiaHecha(destino(), hecha.size(), hecha.lastModified(), m_padre);
        return true;
    });
}

bool cSaveAsRestore::CrearBackupDelDia()
{
    return atender(Dialogos::Trabajo::CopiaDelDia, [this] { return copiarDelDia(); });
}

bool cSaveAsRestore::copiarDelDia()
{
    const QString ruta = rutaDelDia(m_rutaDestino, m_archivoOrigen, QDate::currentDate());
    if (QFile::exists(ruta))
        return false;
    const PConexion datos = Conexion::datos(origen());
    datos->comprobarTodo();
    crearCarpeta(QFileInfo(ruta).path());
    copiarFichero(datos->base(), ruta);
    podarDelDia(m_rutaDestino, m_archivoOrigen, std::max(1, copiasAnteriores()));
    return true;
}

bool cSaveAsRestore::CrearRestore()
{
    m_anteriores.clear();
    return atender(Dialogos::Trabajo::Restauracion, [this] {
        const QString ruta
            = m_dialogos ? m_dialogos->elegirCopia(origen(), filtroDialogo(), m_padre) : origen();
        return !ruta.isEmpty() && restaurar(ruta);
    });
}

bool cSaveAsRestore::restaurar(const QString &ruta)
{
    CopiaElegida copia(ruta, destino());
    Conexion::olvidar(destino());
    if (m_dialogos
        && !m_dialogos->confirmarRestauracion(resumenDe(destino()), copia.resumen(), m_padre))
        return false;
    sustituir(copia);
    if (m_dialogos)
        m_dialogos->restaurada(ruta, m_anteriores, m_padre);
    return true;
}

void cSaveAsRestore::sustituir(CopiaElegida &copia)
{
    Conexion::olvidar(destino());
    if (auto base = abrirSiSirve(destino())) {
        const QFileInfo fichero(m_archivoDestino);
        const QString seguridad
            = unir(m_rutaOrigen, fichero.completeBaseName() + u"_antes."_s + fichero.suffix());
        crearCarpeta(QFileInfo(seguridad).path());
        copiarFichero(*base, seguridad, [&] { conservarAnterior(seguridad, copiasAnteriores()); });
        m_anteriores = seguridad;
        // Through SQLite, so that a journal left by a crash is dealt with, not replayed over it.
        conErrores(destino(), [&] { base->exec("PRAGMA synchronous = EXTRA"); });
        terminarCambio(*base, destino(), [&] { copiarContenido(copia.base(), *base, destino()); });
    } else {
        copiarFichero(copia.base(), destino(), [this] { m_anteriores = apartarBase(destino()); });
    }
}

} // namespace servidor
