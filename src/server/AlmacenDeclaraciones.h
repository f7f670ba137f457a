#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/Prueba.h"

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

    TablaProbada probada;
    std::string crear, guardar, leer, borrar; ///< SQL; `crear` is that of schema 1
};

const Modelo &modelo430();
const Modelo &modelo480();

/// Null when there is no such model.
const Modelo *modeloDe(const QString &codigo);

/// Saves header and figures (RegGuardar and what follows it) in one transaction: the return's key,
/// or 0 when it was refused. Throws SinDeclarante or SinDeclaracion when it is not
/// stored.
qint32 guardarDeclaracion(const QString &ruta, const Modelo &modelo, const Registro &datos);

/// The same for a set of them, of both models, in one transaction (cDeclaracion::GuardarConjunto).
Registro guardarDeclaraciones(const QString &ruta, const Filas &registros, bool todoONada);

/// The figures of a return, in the order of its model's record.
Registro cargarFiguras(const PConexion &conexion, const Modelo &modelo, qint32 CSDE);

/// Throws ErrorDatos; `nombre` where it is known.
[[noreturn]] void sinDeclaracion(const QString &nombre = {});

} // namespace servidor
