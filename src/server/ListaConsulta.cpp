#include "server/ListaConsulta.h"

#include "server/ErroresSqlite.h"
#include "server/Orden.h"
#include "server/Sentencia.h"

#include <stdexcept>

namespace servidor {

namespace {

bool esUnSelect(const QString &sql)
{
    return sql.trimmed().startsWith(u"SELECT ", Qt::CaseInsensitive) && !sql.contains(u';');
}

QVariant valor(const Sentencia &fila, int columna)
{
    return fila.esEntero(columna) ? QVariant(fila.clave(columna)) : QVariant(fila.texto(columna));
}

} // namespace

Filas listaConsulta(const PConexion &consulta, const QString &sql)
{
    if (!esUnSelect(sql))
        throw std::invalid_argument("not a single SELECT");
    Sentencia sentencia(consulta, sql.toStdString());
    if (sentencia.columnas() != 2)
        throw std::invalid_argument("not a list of codes and names");
    Filas filas;
    while (sentencia.fila())
        filas.append(QVariant(QVariantList{valor(sentencia, 0), valor(sentencia, 1)}));
    ordenarPorTexto(filas, 1); // byte order puts "ÁLAVA" after "ZARAGOZA"
    return filas;
}

} // namespace servidor
