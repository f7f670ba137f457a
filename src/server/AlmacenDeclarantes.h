#pragma once

#include "dataservice/Registros.h"
#include "server/Conexion.h"
#include "server/DatosDeclarante.h"
#include "server/Prueba.h"
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
    /// Throws std::invalid_argument when a code is none, RegistroDanado when the row to be changed
    /// is not as it was written.
    bool escribir(const DatosDeclarante &datos);

private:
    static const std::string &sentencia(Clase clase);

    PConexion m_conexion;
    Sentencia m_sentencia;
    qint32 m_siguiente; // key of the next new one; within a transaction nobody else takes it
    std::string m_clave; // bound as it stands here
};

/// Key of the next row that is added to a table.
qint32 siguienteClave(const PConexion &conexion, const TablaProbada &tabla);

/// Throws RegistroDanado when that declarant is stored and not as it was written.
void exigirBien(const PConexion &conexion, qint32 CSCO);

/// Key stored under a DNI, 0 when there is none. Throws RegistroDanado.
qint32 claveDeDni(const PConexion &conexion, const std::string &dni);

/// Inserts or updates a RegDeclarante within the caller's transaction, as
/// cDeclarante::GuardarDeclarante tells. Unless it is done nothing has been written.
Guardado guardarDeclarante(const PConexion &conexion, const Registro &registro);

/// Makes a declarant the most recent one. Throws SinDeclarante when it is not stored.
void marcarReciente(const PConexion &conexion, qint32 CSCO);

/// SELECT of all a declarant's columns and, after them, whether the row is as it was written; to be
/// followed by a condition or an order.
std::string seleccionDeclarante(std::string_view resto);
/// The RegDeclarante of a row of it that is.
Registro registroDeclarante(const Sentencia &fila);
/// The same, or the RegDanado of one that is not.
Registro registroListado(const PConexion &conexion, const Sentencia &fila);
Registro registroDanado(const PConexion &conexion, qint32 CSCO);

/// Whether a row whose last column says so is as it was written.
bool filaBien(const Sentencia &fila);

/// Mark of a stored record: another one when any field differs.
QByteArray huella(const Registro &registro);

/// Throws ErrorDatos; `nombre` where it is known.
[[noreturn]] void sinDeclarante(const QString &nombre = {});

} // namespace servidor
