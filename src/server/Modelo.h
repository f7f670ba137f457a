#pragma once

#include <QString>

#include <string>
#include <vector>

namespace servidor {

/// How one of the return models is stored: its table of figures, in the order of its record.
struct Modelo
{
    enum class Clase { Marca, Importe, Tipo };
    struct Columna
    {
        std::string nombre;
        Clase clase;
    };

    Modelo(const QString &codigo, qint32 periodicidad, qsizetype listado,
           std::vector<Columna> columnas);

    QString codigo;
    qint32 periodicidad; ///< 1 monthly, 2 annual; the typology has the same number
    qsizetype listado; ///< the figure shown in the list of returns
    std::vector<Columna> columnas;

    std::string tabla;
    std::string crear, guardar, leer, borrar; ///< SQL
};

const Modelo &modelo430();
const Modelo &modelo480();

/// Null when there is no such model.
const Modelo *modeloDe(const QString &codigo);

} // namespace servidor
