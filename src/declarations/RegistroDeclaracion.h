#pragma once

#include "core/Unico.h"
#include "dataservice/Registros.h"
#include "declarants/cDecResumen.h"

#include <utility>

/// What the records of both models share.

/// The seven elements (RegGuardar) in front of the figures of the return `csde`.
inline Registro cabeceraGuardar(qint32 csde)
{
    const auto &c = unico::la<cDecResumen>();
    return {csde,        c.CSCO(),   c.EJERCICIO(), c.PERIODICIDAD(),
            c.PERIODO(), c.MODELO(), c.TIPOLOGIA()};
}

/// Carries out `cambio` on a return's record and recomputes it. When a total no longer fits its box
/// (13 integer digits) the record stays as it was and the result is false.
template <class Declaracion, class Cambio>
bool cambiarSiCabe(Declaracion &registro, Cambio &&cambio)
{
    Declaracion copia = registro;
    cambio(copia);
    copia.CalcularValores();
    if (!copia.cabe())
        return false;
    registro = std::move(copia);
    return true;
}
