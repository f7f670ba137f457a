#pragma once

#include "cli/Orden.h"
#include "core/Textos.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <span>

/// A list for the terminal: its rows under their titles, in aligned columns.
struct Tabla
{
    struct Titulo
    {
        QString texto;
        bool numerica = false; ///< aligned to the right
    };
    QList<Titulo> titulos;
    QList<QStringList> filas;

    QString texto() const;
    QString csv() const;
};

/// One column of a list.
template <class Fila> struct Columna
{
    QStringView nombre; ///< in JSON
    QJsonValue (*valor)(const Fila &);
    QString titulo{}; ///< in the table; empty: not shown there
    bool numerica = false;
    QString (*texto)(const Fila &) = nullptr; ///< in the table, where it is not the value
};

/// The table of a list.
template <class Fila>
Tabla tablaDe(std::span<const Columna<Fila>> columnas, const QList<Fila> &filas)
{
    Tabla tabla;
    tabla.filas.resize(filas.size());
    for (const auto &columna : columnas) {
        if (columna.titulo.isEmpty())
            continue;
        tabla.titulos.append({columna.titulo, columna.numerica});
        for (qsizetype i = 0; i < filas.size(); ++i)
            tabla.filas[i] += columna.texto ? columna.texto(filas[i])
                                            : columna.valor(filas[i]).toVariant().toString();
    }
    return tabla;
}

QString textoJson(const QJsonArray &lista);

template <class Fila>
QString textoJson(std::span<const Columna<Fila>> columnas, const QList<Fila> &filas)
{
    QJsonArray lista;
    for (const Fila &fila : filas) {
        QJsonObject objeto;
        for (const auto &columna : columnas)
            objeto.insert(columna.nombre, columna.valor(fila));
        lista.append(objeto);
    }
    return textoJson(lista);
}

/// What a command that lists answers: as a table, as JSON or as CSV. `ninguno` is said when there
/// is nothing to list.
template <class Fila>
Resultado listado(const Argumentos &argumentos, std::span<const Columna<Fila>> columnas,
                  const QList<Fila> &filas, Msj ninguno)
{
    const bool json = argumentos.tiene(u"json");
    const bool csv = argumentos.tiene(u"csv");
    if (json && csv)
        return malUso(msj(Msj::CliOpcionesExcluyentes, conGuiones(u"json"), conGuiones(u"csv")));
    if (json)
        return hecho(textoJson(columnas, filas));
    if (csv)
        return hecho(tablaDe(columnas, filas).csv());
    return hecho(filas.isEmpty() ? msj(ninguno) : tablaDe(columnas, filas).texto());
}
