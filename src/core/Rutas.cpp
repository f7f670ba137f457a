#include "core/Rutas.h"

#include <QDir>

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
    r.tablas = base + (base.endsWith(u'/') ? u"Tablas/"_qs : u"/Tablas/"_qs);
    r.lectura = r.tablas + u"OstrLec.mdb"_qs;
    r.modelo = r.tablas + u"OstrMod.mdb"_qs;
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
