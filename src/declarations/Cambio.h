#pragma once

#include <utility>

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
