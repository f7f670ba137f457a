#pragma once

#include <QString>

/// Letters of the properties MODO and ENTRADA, by which screens tell each other what to do.

/// MODO of a declarant or a return, and of the list of declarants.
namespace Modo {
inline constexpr QLatin1StringView Alta("A"); ///< a new one
inline constexpr QLatin1StringView Consulta("C"); ///< one that is stored
inline constexpr QLatin1StringView Eliminar("E"); ///< the list deletes
} // namespace Modo

/// MODO of the header of a return.
namespace ModoCabecera {
inline constexpr QLatin1StringView Lista("L"); ///< nothing proposed
inline constexpr QLatin1StringView Nueva("N"); ///< a new return is proposed
} // namespace ModoCabecera

/// ENTRADA of the header and of the 480.
namespace Entrada {
inline constexpr QLatin1StringView Abrir("A"); ///< loads, nothing selected yet
inline constexpr QLatin1StringView Vuelta("P"); ///< back from another screen
} // namespace Entrada

/// IDI, the language's code as it is stored.
namespace CodigoIdioma {
inline constexpr QLatin1StringView Castellano("C");
inline constexpr QLatin1StringView Euskera("E");
} // namespace CodigoIdioma
