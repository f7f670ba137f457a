#pragma once

#include "dataservice/ConjuntoDeclarantes.h"
#include "server/Conexion.h"

namespace servidor {

/// Some declarants of a set, one after the other.
struct Tramo
{
    const ConjuntoDeclarantes &conjunto;
    qsizetype desde; ///< from 0
    qsizetype hasta; ///< the first one that is not of them
};

/// Checks and stores them as cDeclarante::GuardarConjunto tells.
QList<ResultadoConjunto> guardarConjunto(const PConexion &datos, const PConexion &lectura,
                                         const Tramo &tramo, Existentes existentes, qint16 idioma);

} // namespace servidor
