#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/DatosDeclarante.h"

#include <QStringList>

#include <set>
#include <string_view>

namespace servidor {

/// Whether a tax identifier (9 characters, upper case) has the form and the control character of a
/// DNI, NIE, special person (K, L, M) or entity.
bool nifValido(std::string_view nif);

/// The number of the first rule that a RegValidacion typed by the user breaks; 0 none.
qint16 primeraReglaRota(const Registro &datos);

/// What a declarant read from an exchange file is held against. The codes of the lookup database
/// are read once.
class ReglasImportar
{
public:
    ReglasImportar(const PConexion &lectura, qint16 idioma);
    Idioma idioma() const { return m_idioma; }

    /// Findings, in the order in which they are told; at most one a field and cause.
    QStringList hallazgos(const DatosDeclarante &declarante) const;

private:
    QList<Regla> codigosDesconocidos(const DatosDeclarante &declarante) const;

    Idioma m_idioma;
    std::set<std::string, std::less<>> m_vias;
    std::set<qint64> m_provincias;
    std::set<qint64> m_municipios;
};

} // namespace servidor
