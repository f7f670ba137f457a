#pragma once

#include "core/Unico.h"
#include "dataservice/Registros.h"
#include "declarants/cDecResumen.h"

/// The seven elements (RegGuardar) in front of the figures of the return `csde`.
inline Registro cabeceraGuardar(qint32 csde)
{
    const auto &c = unico::la<cDecResumen>();
    return {csde,        c.CSCO(),   c.EJERCICIO(), c.PERIODICIDAD(),
            c.PERIODO(), c.MODELO(), c.TIPOLOGIA()};
}
