#include "server/AlmacenConjunto.h"

#include "resources/TablaMensajes.h"
#include "server/AlmacenDeclarantes.h"
#include "server/ValidacionDeclarante.h"

#include <optional>

namespace servidor {

namespace {

using Clase = ResultadoConjunto::Clase;

/// Where the valid declarants of a set go.
class Destino
{
public:
    Destino(const PConexion &datos, Existentes existentes)
        : m_datos(datos)
        , m_existentes(existentes)
        , m_alta(datos, EscrituraDeclarante::Clase::Alta)
        , m_cambio(datos, EscrituraDeclarante::Clase::Cambio)
    {
    }

    /// Nothing when the set has to end before this one. Throws RegistroDanado, and nothing is
    /// written, when what is stored of it is damaged.
    std::optional<Clase> guardar(DatosDeclarante &declarante)
    {
        if (m_existentes == Existentes::Examinar)
            return clave(declarante) == 0 ? Clase::Nuevo : Clase::Conservado;
        if (m_alta.escribir(declarante))
            return Clase::Nuevo;
        if (m_existentes == Existentes::Detenerse)
            return {};
        if (m_existentes == Existentes::Conservar)
            return Clase::Conservado;
        declarante.csco = clave(declarante);
        m_cambio.escribir(declarante);
        return Clase::Sustituido;
    }

private:
    qint32 clave(const DatosDeclarante &declarante)
    {
        return claveDeDni(m_datos, declarante.textos[RegDeclarante::DNI]);
    }

    PConexion m_datos;
    Existentes m_existentes;
    EscrituraDeclarante m_alta;
    EscrituraDeclarante m_cambio;
};

/// One that is refused because of what is stored of it, as a finding.
QString hallazgo(const ErrorDatos &error, Idioma idioma)
{
    if (error.fallo() != Fallo::RegistroDanado)
        throw;
    return textoMensaje(static_cast<int>(Msj::FalloRegistroDanado), idioma).arg(error.objeto());
}

QList<ResultadoConjunto> guardarTramo(Destino &destino, const ReglasImportar &reglas,
                                      const Tramo &tramo)
{
    QList<ResultadoConjunto> resultados;
    resultados.reserve(tramo.hasta - tramo.desde);
    DatosDeclarante declarante;
    for (qsizetype i = tramo.desde; i < tramo.hasta; ++i) {
        declarante.tomar(tramo.conjunto, i);
        if (QStringList hallazgos = reglas.hallazgos(declarante); !hallazgos.isEmpty()) {
            resultados.append(ResultadoConjunto{Clase::Incorrecto, std::move(hallazgos)});
            continue;
        }
        try {
            const auto clase = destino.guardar(declarante);
            if (!clase)
                break;
            resultados.append(ResultadoConjunto{*clase, {}});
        } catch (const ErrorDatos &error) {
            resultados.append(
                ResultadoConjunto{Clase::Incorrecto, {hallazgo(error, reglas.idioma())}});
        }
    }
    return resultados;
}

} // namespace

QList<ResultadoConjunto> guardarConjunto(const PConexion &datos, const PConexion &lectura,
                                         const Tramo &tramo, Existentes existentes, qint16 idioma)
{
    const ReglasImportar reglas(lectura, idioma);
    if (existentes == Existentes::Examinar) {
        const LecturaUnica vista(datos);
        Destino destino(datos, existentes);
        return guardarTramo(destino, reglas, tramo);
    }
    // a large set is written once, at its end, if its pages find room until then
    constexpr qsizetype grande = 5000;
    datos->paginas(tramo.hasta - tramo.desde > grande ? Conexion::Paginas::Muchas
                                                      : Conexion::Paginas::Usuales);
    Transaccion transaccion(datos);
    auto resultados = [&] {
        Destino destino(transaccion.conexion(), existentes);
        return guardarTramo(destino, reglas, tramo);
    }();
    transaccion.confirmar();
    return resultados;
}

} // namespace servidor
