#pragma once

#include "core/Servicios.h"
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

/// Loads the return `csde` by a method of the service; one that is not stored any more is told by
/// its name.
template <class Metodo> Registro cargarDeclaracion(qint32 csde, Metodo cargar)
{
    const auto &c = unico::la<cDecResumen>();
    Registro registro;
    nombrando(c.CSDE() == csde ? c.NombreDeclaracion() : QString(),
              [&] { (*servicioDeclaracion().*cargar)(csde, registro); });
    return registro;
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
