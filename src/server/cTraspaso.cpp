#include "server/cTraspaso.h"

#include "server/Comprobacion.h"
#include "server/Conexion.h"
#include "server/Diario.h"
#include "server/Esquemas.h"
#include "server/FicherosBase.h"

#include <QDir>
#include <QFileInfo>

#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <algorithm>
#include <exception>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

const std::string &sqlDesde(qint32 esquema, std::span<const Paso> pasos, const QString &ruta)
{
    const auto paso = std::find_if(pasos.begin(), pasos.end(),
                                   [&](const Paso &p) { return p.desde == esquema; });
    if (paso == pasos.end())
        throw ErrorDatos(Fallo::Danada, ruta, u"no way up from schema %1"_s.arg(esquema));
    return paso->sql;
}

void comprobarReferencias(SQLite::Database &base, const QString &ruta)
{
    SQLite::Statement huerfanas(base, "PRAGMA foreign_key_check");
    if (huerfanas.executeStep())
        throw ErrorDatos(Fallo::Danada, ruta, u"rows without their parent"_s);
}

} // namespace

QString copiaAnterior(const QString &ruta, qint32 esquema)
{
    return ruta + u".v"_s + QString::number(esquema);
}

void migrar(const QString &ruta, const Formato &formato, std::span<const Paso> pasos)
{
    Conexion::olvidar(ruta); // it would go on as if nothing had changed
    const qint32 desde = comprobarCabecera(ruta, formato, Version::ActualOMenor);
    if (desde == formato.esquema)
        return;
    auto base = abrirComprobada(ruta, formato, Version::ActualOMenor);
    copiarFichero(base, copiaAnterior(ruta, desde));
    const auto pasar = [&] {
        // Foreign keys stay off meanwhile, so that a step may build a table anew.
        base.exec("PRAGMA foreign_keys = OFF; PRAGMA synchronous = EXTRA");
        SQLite::Transaction transaccion(base, SQLite::TransactionBehavior::IMMEDIATE);
        for (qint32 esquema = desde; esquema < formato.esquema; ++esquema)
            base.exec(sqlDesde(esquema, pasos, ruta));
        comprobarReferencias(base, ruta);
        base.exec("PRAGMA user_version = " + std::to_string(formato.esquema));
        transaccion.commit();
    };
    terminarCambio(base, ruta, [&] { conErrores(ruta, pasar); });
}

std::span<const Paso> pasosDatos()
{
    static const Paso pasos[] = {{1, sqlDesdeEsquema1()}};
    return pasos;
}

namespace {

void prepararDatos(const QString &ruta)
{
    Conexion::olvidar(ruta);
    rechazarEnlaceRoto(ruta);
    if (QFileInfo::exists(ruta) || !crearDatos(ruta))
        migrar(ruta, FormatoDatos, pasosDatos());
    Conexion::datos(ruta);
}

void prepararTablas(const QString &ruta)
{
    Conexion::olvidar(ruta);
    prepararLectura(ruta);
    Conexion::lectura(ruta);
}

template <class F> std::exception_ptr intentar(F &&preparar)
{
    try {
        preparar();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

} // namespace

bool cTraspaso::Traspaso()
{
    crearCarpeta(m_carpeta);
    const auto datos = intentar([&] { prepararDatos(m_datos); });
    const auto lectura
        = intentar([&] { prepararTablas(QDir(m_carpeta).filePath(u"OstrLec.mdb"_s)); });
    if (datos)
        std::rethrow_exception(datos);
    if (lectura)
        std::rethrow_exception(lectura);
    return false;
}

void cTraspaso::Comprobar()
{
    Conexion::datos(m_datos)->comprobarTodo();
}

} // namespace servidor
