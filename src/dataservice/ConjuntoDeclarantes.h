#pragma once

#include "dataservice/Registros.h"

#include <QStringList>

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// Declarants read from a file, one after the other in little memory: of each the texts of the
/// fields DNI to TELEFONO of RegDeclarante, in UTF-8.
class ConjuntoDeclarantes
{
public:
    using Campo = RegDeclarante::Campo;
    static constexpr std::size_t Textos = RegDeclarante::TELEFONO;

    qsizetype size() const { return static_cast<qsizetype>(m_fines.size() / Textos); }
    void clear();
    /// Adds a declarant; its texts from DNI on.
    void anadir(const std::array<std::string_view, Textos> &textos);
    /// A text of a declarant (from 0); valid until one is added.
    std::string_view texto(qsizetype declarante, Campo campo) const;

private:
    std::string m_bytes;
    std::vector<std::size_t> m_fines; ///< where each text ends
};

/// What became of one declarant of a set.
struct ResultadoConjunto
{
    enum Clase { Nuevo, Sustituido, Conservado, Incorrecto };

    Clase clase;
    QStringList hallazgos; ///< why it is Incorrecto
};
