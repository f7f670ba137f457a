#include "server/cDeclaracion.h"

#include "server/AlmacenDeclaraciones.h"
#include "server/AlmacenDeclarantes.h"
#include "server/LectorRegistro.h"
#include "server/ValidacionDeclaracion.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

// EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA from column 1 on.
Registro camposComunes(const Sentencia &fila)
{
    return {fila.clave(1), fila.clave(2), fila.clave(3), fila.texto(4), fila.clave(5)};
}

bool estaGuardada(const PConexion &conexion, const Registro &cabecera)
{
    using namespace RegCabecera;
    return Sentencia(conexion,
                     "SELECT 1 FROM DECLARACIONES WHERE CSCO = ? AND EJERCICIO = ? AND PERIODO = ? "
                     "AND MODELO = ?")
        .con(cabecera[CSCO].toLongLong(), cabecera[EJERCICIO].toLongLong(),
             cabecera[PERIODO].toLongLong(), cabecera[MODELO].toString())
        .fila();
}

} // namespace

qint32 cDeclaracion::dameResultado(Filas &filas, qint32 CSCO)
{
    Sentencia sentencia(Conexion::modelo(m_ruta),
                        "SELECT CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE "
                        "FROM DECLARACIONES WHERE CSCO = ? ORDER BY EJERCICIO, PERIODO, MODELO");
    sentencia.con(CSCO);
    Filas leidas;
    while (sentencia.fila()) {
        Registro fila{sentencia.clave(0)};
        fila += camposComunes(sentencia);
        fila += static_cast<double>(sentencia.entero(6));
        leidas.append(QVariant(fila));
    }
    filas = std::move(leidas);
    return static_cast<qint32>(filas.size());
}

bool cDeclaracion::EjerPerValidos(const Registro &cabecera)
{
    return dentroDeLimites(cabecera);
}

bool cDeclaracion::ObtenerUltimaDeclaracion(Registro &cabecera, qint32 &CSDE)
{
    const qint32 declarante = cabecera.value(RegUltima::CSCO).toInt();
    Sentencia sentencia(Conexion::modelo(m_ruta),
                        "SELECT CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA "
                        "FROM DECLARACIONES WHERE CSCO = ? "
                        "ORDER BY EJERCICIO DESC, PERIODO DESC, MODELO DESC LIMIT 1");
    if (!sentencia.con(declarante).fila())
        return false;
    CSDE = sentencia.clave(0);
    cabecera = Registro{declarante} + camposComunes(sentencia);
    return true;
}

qint16 cDeclaracion::ValidarDatosComunes(const Registro &cabecera)
{
    const qint16 codigo = reglaCabecera(cabecera);
    return codigo == 0 && estaGuardada(Conexion::modelo(m_ruta), cabecera) ? CabeceraGuardada
                                                                           : codigo;
}

void cDeclaracion::Cargar430(qint32 &CSDE, Registro &figuras)
{
    figuras = cargarFiguras(Conexion::modelo(m_ruta), modelo430(), CSDE);
}

void cDeclaracion::Cargar480(qint32 &CSDE, Registro &figuras)
{
    figuras = cargarFiguras(Conexion::modelo(m_ruta), modelo480(), CSDE);
}

QByteArray cDeclaracion::Huella(qint32 CSDE)
{
    const PConexion conexion = Conexion::modelo(m_ruta);
    const LecturaUnica lectura(conexion);
    Sentencia sentencia(conexion,
                        "SELECT CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, "
                        "TIPOLOGIA FROM DECLARACIONES WHERE CSDE = ?");
    if (!sentencia.con(CSDE).fila())
        return {};
    const Registro cabecera = Registro{sentencia.clave(0)} + camposComunes(sentencia);
    const Modelo *modelo = modeloDe(sentencia.texto(4));
    return huella(modelo ? cabecera + cargarFiguras(conexion, *modelo, CSDE) : cabecera);
}

qint16 cDeclaracion::ValidarDatos430(const Registro &datos)
{
    return reglaDatos430(datos);
}

qint16 cDeclaracion::ValidarDatos480(const Registro &datos)
{
    return reglaDatos480(datos);
}

qint32 cDeclaracion::Guardar430(const Registro &datos)
{
    return guardarDeclaracion(m_ruta, modelo430(), datos);
}

qint32 cDeclaracion::Guardar480(const Registro &datos)
{
    return guardarDeclaracion(m_ruta, modelo480(), datos);
}

void cDeclaracion::BorrarDatosNoComunes(qint32 CSDE, const QString &modelo)
{
    const Modelo *tabla = modeloDe(modelo);
    if (!tabla)
        throw std::invalid_argument("unknown model");
    m_borrado.reset();
    auto transaccion = std::make_unique<Transaccion>(Conexion::modelo(m_ruta));
    if (Sentencia(transaccion->conexion(), tabla->borrar).con(CSDE).ejecutar() == 0)
        noEncontrado(u"CSDE"_s, CSDE);
    m_borrado = std::move(transaccion);
    m_borrando = CSDE;
}

void cDeclaracion::BorrarDeclaracion(qint32 CSDE)
{
    const auto transaccion = std::move(m_borrado); // undone here too, if anything fails
    if (!transaccion || m_borrando != CSDE)
        throw std::logic_error("BorrarDeclaracion without its BorrarDatosNoComunes");
    if (Sentencia(transaccion->conexion(), "DELETE FROM DECLARACIONES WHERE CSDE = ?")
            .con(CSDE)
            .ejecutar()
        == 0)
        noEncontrado(u"CSDE"_s, CSDE);
    transaccion->confirmar();
}

} // namespace servidor
