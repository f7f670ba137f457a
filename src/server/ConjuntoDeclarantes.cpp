#include "server/ConjuntoDeclarantes.h"

#include "server/AlmacenDeclarantes.h"
#include "server/LectorRegistro.h"
#include "server/ValidacionImportar.h"

#include <optional>

namespace servidor {

namespace {

using Resultado = FilaConjunto::Resultado;

qint32 claveDe(const PConexion &modelo, const QString &dni)
{
    Sentencia sentencia(modelo, "SELECT CSCO FROM DECLARANTES WHERE DNI = ?");
    return sentencia.con(normalizado(dni)).fila() ? sentencia.clave(0) : 0;
}

/// Nothing when the set has to end before this one.
std::optional<Resultado> guardarValido(const PConexion &modelo, Registro registro,
                                       Existentes existentes)
{
    const QString dni = registro[RegDeclarante::DNI].toString();
    if (existentes == Existentes::Examinar)
        return claveDe(modelo, dni) == 0 ? Resultado::Nuevo : Resultado::Conservado;
    registro[RegDeclarante::CSCO] = 0;
    if (guardarDeclarante(modelo, registro, Recientes::NoContar) == 0)
        return Resultado::Nuevo;
    if (existentes == Existentes::Detenerse)
        return {};
    if (existentes == Existentes::Conservar)
        return Resultado::Conservado;
    registro[RegDeclarante::CSCO] = claveDe(modelo, dni);
    guardarDeclarante(modelo, registro, Recientes::NoContar);
    return Resultado::Sustituido;
}

QVariantList fila(Resultado resultado)
{
    return {int(resultado)};
}

QVariantList filaIncorrecta(const Filas &hallazgos)
{
    QVariantList incorrecta = fila(Resultado::Incorrecto);
    for (const QVariant &hallazgo : hallazgos)
        incorrecta += hallazgo.toList().value(0);
    return incorrecta;
}

} // namespace

Filas guardarConjunto(const PConexion &modelo, const PConexion &consulta, const Filas &registros,
                      Existentes existentes, qint16 idioma)
{
    const bool escribe = existentes != Existentes::Examinar;
    std::optional<Transaccion> transaccion;
    if (escribe)
        transaccion.emplace(modelo);
    const LecturaUnica lecturaModelo(modelo);
    const LecturaUnica lecturaConsulta(consulta);

    Filas resultados;
    resultados.reserve(registros.size());
    for (const QVariant &elemento : registros) {
        const Registro registro = elemento.toList();
        const Filas hallazgos = hallazgosImportar(consulta, registro, idioma);
        if (!hallazgos.isEmpty()) {
            resultados.append(QVariant(filaIncorrecta(hallazgos)));
            continue;
        }
        const auto resultado = guardarValido(modelo, registro, existentes);
        if (!resultado)
            break;
        resultados.append(QVariant(fila(*resultado)));
    }
    if (transaccion)
        transaccion->confirmar();
    return resultados;
}

} // namespace servidor
