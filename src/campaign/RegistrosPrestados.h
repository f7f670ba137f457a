#pragma once

#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"

#include <tuple>

/// Lends the records of the session to a work that runs through many returns by the same rules as
/// the screens: what they held is put back when it ends, however it ends.
class RegistrosPrestados
{
public:
    RegistrosPrestados() = default;
    ~RegistrosPrestados()
    {
        std::apply([](auto &...antes) { ((la(antes) = std::move(antes)), ...); }, m_antes);
    }
    RegistrosPrestados(const RegistrosPrestados &) = delete;
    RegistrosPrestados &operator=(const RegistrosPrestados &) = delete;

private:
    template <class Tipo> static Tipo &la(const Tipo &) { return unico::la<Tipo>(); }

    std::tuple<cDecResumen, cDecDatos, cDatos430, cDatos480, cImOf> m_antes{
        unico::la<cDecResumen>(), unico::la<cDecDatos>(), unico::la<cDatos430>(),
        unico::la<cDatos480>(), unico::la<cImOf>()};
};
