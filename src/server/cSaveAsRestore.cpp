#include "server/cSaveAsRestore.h"

#include "server/Comprobacion.h"
#include "server/FicherosBase.h"
#include "server/Sentencia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr int CopiasPorOmision = 5;

QString unir(const QString &carpeta, const QString &archivo)
{
    return QDir::cleanPath(QDir(QDir::fromNativeSeparators(carpeta)).filePath(archivo));
}

// "OstrMod_bak.mdb" was "OstrMod_bak.1.mdb" one backup ago, and so on.
QString anterior(const QString &ruta, int numero)
{
    const QFileInfo fichero(ruta);
    return fichero.dir().filePath(
        u"%1.%2.%3"_s.arg(fichero.completeBaseName()).arg(numero).arg(fichero.suffix()));
}

void rotar(const QString &ruta, int anteriores)
{
    for (int numero = anteriores; numero > 0; --numero) {
        const QString masNueva = numero == 1 ? ruta : anterior(ruta, numero - 1);
        if (QFile::exists(masNueva))
            renombrar(masNueva, anterior(ruta, numero));
    }
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

// A file that cannot be used is never destroyed: it takes another name, its journal with it.
void apartar(const QString &ruta)
{
    const QString apartada = nombreApartado(ruta);
    for (const QString &cola : {QString(), u"-journal"_s})
        if (QFile::exists(ruta + cola))
            renombrar(ruta + cola, apartada + cola);
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

void cSaveAsRestore::CrearBackup()
{
    const PConexion datos = Conexion::datos(origen());
    datos->comprobarEntera();
    crearCarpeta(QFileInfo(destino()).path());
    copiarFichero(datos->base(), destino(), [&] { rotar(destino(), copiasAnteriores()); });
}

bool cSaveAsRestore::CrearRestore()
{
    Formato formato = FormatoDatos;
    formato.soloLectura = true;
    auto copia = abrirComprobada(origen(), formato, Version::ActualOMenor);
    Conexion::olvidar(destino());
    if (auto base = abrirSiSirve(destino())) {
        // Through SQLite, so that a journal left by a crash is dealt with, not replayed over it.
        conErrores(destino(), [&] { base->exec("PRAGMA synchronous = EXTRA"); });
        copiarContenido(copia, *base, destino());
    } else {
        apartar(destino());
        copiarFichero(copia, destino());
    }
    return true;
}

} // namespace servidor
