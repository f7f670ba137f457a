#include "server/ListaLectura.h"

#include "server/Comprobacion.h"
#include "server/Sentencia.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace servidor {

void ordenarPorTexto(Filas &filas, qsizetype columna)
{
    std::vector<std::pair<QString, QVariant>> conClave;
    conClave.reserve(static_cast<std::size_t>(filas.size()));
    for (const QVariant &fila : std::as_const(filas))
        conClave.emplace_back(claveOrden(fila.toList().value(columna).toString()), fila);
    std::stable_sort(conClave.begin(), conClave.end(),
                     [](const auto &una, const auto &otra) { return una.first < otra.first; });
    std::transform(conClave.cbegin(), conClave.cend(), filas.begin(),
                   [](const auto &par) { return par.second; });
}

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

Filas listaLectura(const PConexion &lectura, const QString &sql)
{
    if (!esUnSelect(sql))
        throw std::invalid_argument("not a single SELECT");
    Sentencia sentencia(lectura, sql.toStdString());
    if (sentencia.columnas() != 2)
        throw std::invalid_argument("not a list of codes and names");
    Filas filas;
    while (sentencia.fila())
        filas.append(QVariant(QVariantList{valor(sentencia, 0), valor(sentencia, 1)}));
    ordenarPorTexto(filas, 1); // byte order puts "ÁLAVA" after "ZARAGOZA"
    return filas;
}

} // namespace servidor
