#pragma once

#include "dataservice/ConjuntoDeclarantes.h"
#include "dataservice/Registros.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace servidor {

/// The number that a text of digits stands for, an empty one 0; nothing when it is no such text or
/// more than `maximo`.
std::optional<qint32> numero(std::string_view texto, qint32 maximo);

/// A declarant on its way into the database: its texts and codes trimmed, in upper case, UTF-8.
struct DatosDeclarante
{
    using Campo = RegDeclarante::Campo;

    qint32 csco = 0;
    std::array<std::string, RegDeclarante::NUM430> textos; ///< by Campo; the key has none

    /// A RegDeclarante; throws std::invalid_argument when its length or a kind is wrong.
    static DatosDeclarante de(const Registro &registro);
    /// Takes one of a set.
    void tomar(const ConjuntoDeclarantes &conjunto, qsizetype cual);

    /// Whether a field is stored as a number.
    static constexpr bool esCodigo(Campo campo)
    {
        using namespace RegDeclarante;
        return campo == NUMERO || campo == CODPROV || campo == CODMUN;
    }
    /// Such a field as it is stored; nothing when it is none.
    std::optional<qint32> codigo(Campo campo) const;
};

} // namespace servidor
