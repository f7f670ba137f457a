#pragma once

#include "dataservice/Registros.h"

namespace servidor {

inline constexpr qint32 ProvinciaPropia = 20;
inline constexpr qint32 Provincias = 52; ///< their codes are 1 to 52

/// The rules of a declarant, by the code that says which one is broken.
enum Regla : qint16 {
    Ninguna,
    ReglaDni,
    ReglaNombre,
    ReglaDomicilio,
    ReglaProvincia,
    ReglaPostalDeOtraProvincia,
    ReglaPostalCincoCifras,
    ReglaPostalTresUltimas,
    ReglaPostalCero,
    ReglaCodigoMunicipio,
    ReglaMunicipio,
    ReglaTelefonoNueveCifras,
    ReglaTelefono,
};

enum class Telefono { Obligatorio, PuedeFaltar };

/// The rules that a RegValidacion breaks, in the order in which they are told; at most one a field.
QList<qint16> reglasRotas(const Registro &datos, Telefono telefono);

} // namespace servidor
