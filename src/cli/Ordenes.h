#pragma once

#include "cli/Orden.h"

/// Options that every command takes.
namespace Comun {
inline constexpr QStringView Carpeta = u"carpeta";
inline constexpr QStringView Ayuda = u"help";
inline constexpr QStringView Version = u"version";
} // namespace Comun

/// Every command, in the order in which the help lists them.
std::span<const Orden *const> ordenes();
std::span<const Opcion> opcionesComunes();

/// The command that `palabras` begins with; null when there is none.
const Orden *buscarOrden(const QStringList &palabras);

/// How many words name a command.
qsizetype numeroPalabras(const Orden &orden);

/// Help on the command that `palabras` names; when they name none, on every command that begins
/// with them, or on all.
QString textoAyuda(const QStringList &palabras);
