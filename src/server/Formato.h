#pragma once

#include <QtGlobal>

namespace servidor {

/// What tells one of our database files from any other: the two numbers in the SQLite header.
struct Formato
{
    qint32 aplicacion;
    qint32 esquema;
    bool soloLectura;
};

/// Different numbers, so that one of our files is never taken for the other.
inline constexpr Formato FormatoModelo{0x4F73744D, 1, false}; // "OstM"

/// To be raised whenever one of the lookup texts changes: an installed file is then renewed.
inline constexpr qint32 EdicionConsulta = 1;
inline constexpr Formato FormatoConsulta{0x4F73744C, EdicionConsulta, true}; // "OstL"

} // namespace servidor
