#include "core/Rutas.h"

#include "core/Textos.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

static Rutas &sesion()
{
    static Rutas actuales;
    return actuales;
}

static Rutas conTablasEn(const QString &base, const QString &programa)
{
    Rutas r;
    r.programa = programa;
    r.tablas = base + (base.endsWith(u'/') ? u"Tablas/"_s : u"/Tablas/"_s);
    r.lectura = r.tablas + u"OstrLec.mdb"_s;
    r.datos = r.tablas + u"OstrMod.mdb"_s;
    r.copias = r.programa + (r.programa.endsWith(u'/') ? u"backups/"_s : u"/backups/"_s);
    return r;
}

Rutas Rutas::desde(const QString &carpetaPrograma)
{
    const QString programa = QDir::cleanPath(QDir(carpetaPrograma).absolutePath());
    const auto cliente = programa.indexOf(u"cliente", 0, Qt::CaseInsensitive);
    return conTablasEn(cliente < 0 ? programa : programa.left(qMax<qsizetype>(cliente - 1, 0)),
                       programa);
}

Rutas Rutas::delUsuario()
{
    QString carpeta = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (QDir::isRelativePath(carpeta)) // to be taken for one that is not set
        carpeta = QDir::homePath() + u"/.local/share"_s;
    carpeta = QDir::cleanPath(carpeta + u"/ostrel"_s);
    Rutas r = conTablasEn(carpeta, carpeta);
    r.deUsuario = true;
    return r;
}

const Rutas &rutas()
{
    return sesion();
}

void fijarRutas(const Rutas &nuevas)
{
    sesion() = nuevas;
}

namespace fs = std::filesystem;

static fs::path enDisco(const QString &ruta)
{
    return fs::path(ruta.toStdU16String());
}

// False where one of them is not there or cannot be looked at.
static bool esElMismo(const fs::path &una, const fs::path &otra)
{
    std::error_code error;
    return fs::equivalent(una, otra, error) && !error;
}

// The file that would come to be when a link leads where nothing is yet.
static fs::path destinoFinal(fs::path ruta)
{
    std::error_code error;
    for (int saltos = 0; saltos < 40 && fs::is_symlink(ruta, error); ++saltos)
        ruta = ruta.parent_path() / fs::read_symlink(ruta, error);
    return ruta;
}

// The databases' journals and the copies beside them begin with their names.
static bool esPropiaDe(const QString &carpeta, const QStringList &comienzos, const fs::path &ruta)
{
    const auto nuestra = [&](const QString &nombre) {
        return std::ranges::any_of(comienzos, [&](const QString &comienzo) {
            return nombre.startsWith(comienzo, Qt::CaseInsensitive);
        });
    };
    const fs::path destino = destinoFinal(ruta);
    const QString nombre = QString::fromStdU16String(destino.filename().u16string());
    if (nuestra(nombre) && esElMismo(destino.parent_path(), enDisco(carpeta)))
        return true;
    const QDir contenido(carpeta);
    return std::ranges::any_of(
        contenido.entryList(QDir::Files | QDir::Hidden | QDir::System), [&](const QString &otro) {
            return nuestra(otro) && esElMismo(ruta, enDisco(contenido.filePath(otro)));
        });
}

QString motivoRutaRechazada(const QString &ruta)
{
    const QString legible = QDir::toNativeSeparators(ruta);
    std::error_code error;
    const fs::path pedida = fs::absolute(enDisco(ruta), error);
    const fs::file_status estado = fs::status(pedida, error);
    if (fs::exists(estado) && !fs::is_regular_file(estado))
        return msj(Msj::FicheroNoRegular, legible);
    const bool propia = esPropiaDe(rutas().tablas, {u"OstrMod.mdb"_s, u"OstrLec.mdb"_s}, pedida)
        || esPropiaDe(rutas().copias, {u"OstrMod_"_s}, pedida)
        || esElMismo(pedida, enDisco(QCoreApplication::applicationFilePath()));
    return propia ? msj(Msj::FicheroDelPrograma, legible) : QString();
}
