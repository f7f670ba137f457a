#include "core/Rutas.h"

#include <QDir>

using namespace Qt::StringLiterals;

static Rutas &sesion()
{
    static Rutas actuales;
    return actuales;
}

Rutas Rutas::desde(const QString &carpetaPrograma)
{
    Rutas r;
    r.programa = QDir::cleanPath(QDir(carpetaPrograma).absolutePath());
    const auto cliente = r.programa.indexOf(u"cliente", 0, Qt::CaseInsensitive);
    const QString base
        = cliente < 0 ? r.programa : r.programa.left(qMax<qsizetype>(cliente - 1, 0));
    r.tablas = base + (base.endsWith(u'/') ? u"Tablas/"_s : u"/Tablas/"_s);
    r.lectura = r.tablas + u"OstrLec.mdb"_s;
    r.datos = r.tablas + u"OstrMod.mdb"_s;
    r.copias = r.programa + (r.programa.endsWith(u'/') ? u"backups/"_s : u"/backups/"_s);
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
