#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/DatosDeclarante.h"
#include "server/Sentencia.h"

#include <string>

namespace servidor {

/// The statement that inserts a declarant or changes the one with its key, prepared once.
class EscrituraDeclarante
{
public:
    enum class Clase { Alta, Cambio };

    EscrituraDeclarante(const PConexion &conexion, Clase clase);

    /// False when nothing was written: its DNI is stored already (Alta), or its key is not there.
    /// Throws std::invalid_argument when a code is none.
    bool escribir(const DatosDeclarante &datos);

private:
    Sentencia m_sentencia;
    std::string m_clave; // bound as it stands here
};

/// Inserts or updates a RegDeclarante within the caller's transaction, as
/// cDeclarante::GuardarDeclarante tells. Unless it is done nothing has been written.
Guardado guardarDeclarante(const PConexion &conexion, const Registro &registro);

/// Makes a declarant the most recent one. Throws SinDeclarante when it is not stored.
void marcarReciente(const PConexion &conexion, qint32 CSCO);

/// SELECT of all a declarant's columns, to be followed by a condition or an order, and the
/// RegDeclarante of a row of it.
std::string seleccionDeclarante(std::string_view resto);
Registro registroDeclarante(const Sentencia &fila);

/// Mark of a stored record: another one when any field differs.
QByteArray huella(const Registro &registro);

/// Throws ErrorDatos; `nombre` where it is known.
[[noreturn]] void sinDeclarante(const QString &nombre = {});

} // namespace servidor
