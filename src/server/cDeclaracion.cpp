#include "server/cDeclaracion.h"

#include "server/AlmacenDeclaraciones.h"
#include "server/AlmacenDeclarantes.h"
#include "server/Danados.h"
#include "server/LectorRegistro.h"

#include <stdexcept>
#include <unordered_map>
#include <utility>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr qint32 Anno = 32'767;
constexpr qint32 Periodo = 255;

using Par = std::pair<qint32, qint32>;

bool dentroDeLimites(const Registro &cabecera)
{
    using namespace RegCabecera;
    LectorRegistro lector(cabecera.first(std::min<qsizetype>(cabecera.size(), TotalPeriodo)),
                          TotalPeriodo);
    const auto par = [&](qsizetype ejercicio, qsizetype periodo) {
        return Par(lector.entero(ejercicio, -Anno, Anno), lector.entero(periodo, 0, Periodo));
    };
    const Par pedido = par(EJERCICIO, PERIODO);
    const Par minimo = par(EJERMIN, PERMIN);
    const Par maximo = par(EJERMAX, PERMAX);
    const bool anual = lector.entero(PERIODICIDAD, 0, Periodo) == PeriodicidadAnual;
    lector.exigirValido();
    if (anual && pedido.second != PeriodoAnual)
        return false;
    return pedido.second >= 1 && pedido.second <= UltimoMes && minimo <= pedido && pedido <= maximo;
}

ReglaCabecera reglaCabecera(const Registro &cabecera)
{
    using namespace RegCabecera;
    LectorRegistro lector(cabecera, Total);
    const qint32 ejercicio = lector.entero(EJERCICIO, -Anno, Anno);
    const qint32 periodo = lector.entero(PERIODO, 0, Periodo);
    const QString modelo = lector.texto(MODELO);
    lector.entero(CSCO, 0, std::numeric_limits<qint32>::max());
    lector.exigirValido();
    if (ejercicio == 0)
        return ReglaCabecera::Ejercicio;
    if (periodo == 0)
        return ReglaCabecera::Periodo;
    const Modelo *deEste = modeloDe(modelo);
    if (!deEste)
        return ReglaCabecera::Modelo;
    if (deEste->periodicidad == PeriodicidadAnual && periodo != PeriodoAnual)
        return ReglaCabecera::Periodo;
    return dentroDeLimites(cabecera) ? ReglaCabecera::Ninguna : ReglaCabecera::Fuera;
}

Regla430 reglaDatos430(const Registro &datos)
{
    using namespace RegValidar430;
    LectorRegistro lector(datos, Total);
    const bool rectifica = !lector.texto(RECTIFICA).isEmpty();
    const qint64 base = lector.importe(BASEREC);
    const qint64 cuota = lector.importe(CUOTAREC);
    lector.exigirValido();
    if (!rectifica)
        return Regla430::Ninguna;
    if (base == 0)
        return Regla430::BaseRectificada;
    return cuota == 0 ? Regla430::CuotaRectificada : Regla430::Ninguna;
}

Regla480 reglaDatos480(const Registro &datos)
{
    using namespace RegValidar480;
    LectorRegistro lector(datos, Total);
    const qint64 total = lector.importe(C70_TOT);
    const qint64 bandas = lector.importe(C73_BA1) + lector.importe(C76_BA2);
    lector.exigirValido();
    return total == bandas ? Regla480::Ninguna : Regla480::TotalNoExento;
}

// EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA from column 1 on.
Registro camposComunes(const Sentencia &fila)
{
    return {fila.clave(1), fila.clave(2), fila.clave(3), fila.texto(4), fila.clave(5)};
}

/// Null when the row is not as it was written.
QVariant importeDe(const Sentencia &fila, int columna)
{
    return filaBien(fila) ? QVariant(static_cast<double>(fila.entero(columna))) : QVariant();
}

bool estaGuardada(const PConexion &conexion, const Registro &cabecera)
{
    using namespace RegCabecera;
    Sentencia guardada(conexion,
                       "SELECT 1 FROM DECLARACIONES WHERE CSCO = ? AND EJERCICIO = ? AND "
                       "PERIODO = ? AND MODELO = ?");
    guardada.con(cabecera[CSCO].toLongLong(), cabecera[EJERCICIO].toLongLong(),
                 cabecera[PERIODO].toLongLong(), cabecera[MODELO].toString());
    if (guardada.fila())
        return true;
    exigirCuenta(conexion, cabecera[CSCO].toInt());
    return false;
}

/// What is sure of a damaged header, as camposComunes; 0 and empty when it is not even sure that it
/// is one of that declarant.
Registro camposSeguros(const PConexion &conexion, qint32 CSDE, qint32 CSCO)
{
    const auto segura = cabeceraSegura(conexion, CSDE);
    const Modelo *modelo = segura.csco == CSCO ? modeloDe(segura.modelo) : nullptr;
    if (!modelo)
        return {0, 0, 0, QString(), 0};
    return {segura.ejercicio, modelo->periodicidad, segura.periodo, segura.modelo,
            modelo->periodicidad};
}

/// A damaged return can be deleted while it is sure which one it is: its declarant counts it.
void exigirSeguras(const PConexion &conexion, qint32 CSDE, const QString &modelo)
{
    static const std::string sql = "SELECT MODELO = ?2, CSCO, " + probadaDeclaraciones().bien()
        + " FROM DECLARACIONES WHERE CSDE = ?1";
    Sentencia fila(conexion, sql);
    if (!fila.con(CSDE, modelo).fila() || filaBien(fila))
        return;
    const auto segura = cabeceraSegura(conexion, CSDE);
    if (fila.entero(0) == 0 || fila.clave(1) != segura.csco)
        declaracionDanada(conexion, CSDE);
}

/// FilaBuscada of a RegBuscada.
Registro buscarDeclaracion(const PConexion &conexion, const Registro &buscada)
{
    LectorRegistro lector(buscada, RegBuscada::Total);
    const QString dni = lector.texto(RegBuscada::DNI);
    const qint32 ejercicio = lector.entero(RegBuscada::EJERCICIO, -Anno, Anno);
    const qint32 periodo = lector.entero(RegBuscada::PERIODO, 0, Periodo);
    const QString modelo = lector.texto(RegBuscada::MODELO);
    lector.exigirValido();
    static const std::string sqlDeclarante = "SELECT CSCO, " + cuadran() + ", "
        + probadaDeclarantes().bien() + " FROM DECLARANTES D WHERE DNI = ?";
    Sentencia declarante(conexion, sqlDeclarante);
    if (!declarante.con(dni).fila()) {
        conexion->comprobarDnis();
        return {0, 0, 0.0};
    }
    const qint32 csco = declarante.clave(0);
    const bool cuentaBien = declarante.entero(1) == 1;
    if (!filaBien(declarante))
        return {csco, 0, QVariant()};
    static const std::string sql = "SELECT CSDE, IMPORTE, " + probadaDeclaraciones().bien()
        + " FROM DECLARACIONES WHERE CSCO = ? AND EJERCICIO = ? AND PERIODO = ? AND MODELO = ?";
    Sentencia sentencia(conexion, sql);
    if (!sentencia.con(csco, ejercicio, periodo, modelo).fila()) {
        if (!cuentaBien)
            exigirCuenta(conexion, csco);
        return {csco, 0, 0.0};
    }
    return {csco, sentencia.clave(0), importeDe(sentencia, 1)};
}

/// How a declarant stands with a return (FilaPendiente).
struct Estado
{
    qint32 csde = 0;
    QVariant importe = 0.0;
    qint32 primero = 0, cuantos = 0;
    qint64 anteriores = 0;
};

using Estados = std::unordered_map<qint32, Estado>;

/// The return asked for, and the first month that does not come before it.
struct Pedida
{
    qint32 ejercicio, periodo;
    QString modelo;
    qint32 hasta;
};

void contarMes(Estado &estado, qint32 mes, qint32 hasta)
{
    estado.primero = estado.primero == 0 ? mes : std::min(estado.primero, mes);
    if (mes >= hasta)
        return;
    ++estado.cuantos;
    if (hasta - mes <= FilaPendiente::MesesVistos)
        estado.anteriores |= qint64(1) << (hasta - 1 - mes);
}

void contar(Estados &estados, const Pedida &pedida, qint32 CSDE, const CabeceraSegura &c,
            const QVariant &importe)
{
    if (c.modelo == Modelo430)
        contarMes(estados[c.csco], c.ejercicio * UltimoMes + c.periodo - 1, pedida.hasta);
    if (c.ejercicio != pedida.ejercicio || c.periodo != pedida.periodo || c.modelo != pedida.modelo)
        return;
    Estado &estado = estados[c.csco];
    estado.csde = CSDE;
    estado.importe = importe;
}

// One passage over the table as it lies: the index alone would not tell a damaged entry. Of whom a
// damaged return is has to be sure: it might be anybody's that seems to be due.
void leerEstados(const PConexion &conexion, const Pedida &pedida, Estados &estados)
{
    static const std::string sql = "SELECT CSDE, CSCO, EJERCICIO, PERIODO, MODELO, IMPORTE, "
        + probadaDeclaraciones().bien() + " FROM DECLARACIONES NOT INDEXED";
    recorrerTodas(conexion, probadaDeclaraciones(), sql, [&](const Sentencia &fila) {
        const qint32 csde = fila.clave(0);
        if (filaBien(fila)) {
            contar(estados, pedida, csde,
                   {fila.clave(1), fila.clave(2), fila.clave(3), fila.texto(4)},
                   static_cast<double>(fila.entero(5)));
            return true;
        }
        const auto segura = cabeceraSegura(conexion, csde);
        if (segura.modelo.isEmpty())
            declaracionDanada(conexion, csde);
        contar(estados, pedida, csde, segura, QVariant());
        return true;
    });
}

} // namespace

qint32 cDeclaracion::dameResultado(Filas &filas, qint32 CSCO)
{
    const PConexion conexion = Conexion::datos(m_ruta);
    static const std::string sql
        = "SELECT CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE, "
        + probadaDeclaraciones().bien()
        + " FROM DECLARACIONES WHERE CSCO = ? ORDER BY EJERCICIO, PERIODO, MODELO";
    Sentencia sentencia(conexion, sql);
    sentencia.con(CSCO);
    Filas leidas;
    while (sentencia.fila()) {
        Registro fila{sentencia.clave(0)};
        fila += filaBien(sentencia) ? camposComunes(sentencia)
                                    : camposSeguros(conexion, sentencia.clave(0), CSCO);
        fila += importeDe(sentencia, 6);
        leidas.append(QVariant(fila));
    }
    exigirCuenta(conexion, CSCO);
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
    static const std::string sql
        = "SELECT CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA "
          "FROM DECLARACIONES WHERE CSCO = ? AND "
        + probadaDeclaraciones().bien()
        + " ORDER BY EJERCICIO DESC, PERIODO DESC, MODELO DESC LIMIT 1";
    Sentencia sentencia(Conexion::datos(m_ruta), sql);
    if (!sentencia.con(declarante).fila())
        return false;
    CSDE = sentencia.clave(0);
    cabecera = Registro{declarante} + camposComunes(sentencia);
    return true;
}

qint16 cDeclaracion::ValidarDatosComunes(const Registro &cabecera)
{
    const ReglaCabecera regla = reglaCabecera(cabecera);
    const bool repetida
        = regla == ReglaCabecera::Ninguna && estaGuardada(Conexion::datos(m_ruta), cabecera);
    return static_cast<qint16>(repetida ? ReglaCabecera::Existe : regla);
}

void cDeclaracion::Cargar430(qint32 &CSDE, Registro &figuras)
{
    figuras = cargarFiguras(Conexion::datos(m_ruta), modelo430(), CSDE);
}

void cDeclaracion::Cargar480(qint32 &CSDE, Registro &figuras)
{
    figuras = cargarFiguras(Conexion::datos(m_ruta), modelo480(), CSDE);
}

QByteArray cDeclaracion::Huella(qint32 CSDE)
{
    const PConexion conexion = Conexion::datos(m_ruta);
    const LecturaUnica lectura(conexion);
    static const std::string sql = "SELECT CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, "
                                   "TIPOLOGIA, "
        + probadaDeclaraciones().bien() + " FROM DECLARACIONES WHERE CSDE = ?";
    Sentencia sentencia(conexion, sql);
    if (!sentencia.con(CSDE).fila())
        return {};
    if (!filaBien(sentencia))
        declaracionDanada(conexion, CSDE);
    const Registro cabecera = Registro{sentencia.clave(0)} + camposComunes(sentencia);
    const Modelo *modelo = modeloDe(sentencia.texto(4));
    return huella(modelo ? cabecera + cargarFiguras(conexion, *modelo, CSDE) : cabecera);
}

qint16 cDeclaracion::ValidarDatos430(const Registro &datos)
{
    return static_cast<qint16>(reglaDatos430(datos));
}

qint16 cDeclaracion::ValidarDatos480(const Registro &datos)
{
    return static_cast<qint16>(reglaDatos480(datos));
}

qint32 cDeclaracion::Guardar430(const Registro &datos)
{
    return guardarDeclaracion(m_ruta, modelo430(), datos);
}

qint32 cDeclaracion::Guardar480(const Registro &datos)
{
    return guardarDeclaracion(m_ruta, modelo480(), datos);
}

Registro cDeclaracion::GuardarConjunto(const Filas &registros, bool todoONada)
{
    return guardarDeclaraciones(m_ruta, registros, todoONada);
}

void cDeclaracion::Buscar(const Filas &buscadas, Filas &filas)
{
    const PConexion conexion = Conexion::datos(m_ruta);
    const LecturaUnica lectura(conexion);
    Filas halladas;
    halladas.reserve(buscadas.size());
    for (const QVariant &una : buscadas)
        halladas.append(QVariant(buscarDeclaracion(conexion, una.toList())));
    filas = std::move(halladas);
}

void cDeclaracion::RecorrerPendientes(qint16 ejercicio, const QString &modelo, quint8 periodo,
                                      const std::function<bool(const Registro &)> &visitar)
{
    const Modelo *pedido = modeloDe(modelo);
    if (!pedido)
        throw std::invalid_argument("unknown model");
    const PConexion conexion = Conexion::datos(m_ruta);
    const LecturaUnica lectura(conexion);
    const bool anual = pedido->periodicidad == PeriodicidadAnual;
    Estados estados;
    leerEstados(conexion,
                {ejercicio, periodo, modelo, ejercicio * UltimoMes + periodo - 1 + (anual ? 1 : 0)},
                estados);
    static const Estado ninguno;
    static const std::string sql = "SELECT CSCO, DNI, NOMBRE, " + probadaDeclarantes().bien()
        + " FROM DECLARANTES ORDER BY CLAVE, DNI";
    recorrerTodas(conexion, probadaDeclarantes(), sql, [&](const Sentencia &fila) {
        if (!filaBien(fila))
            return visitar(registroDanado(conexion, fila.clave(0)));
        const auto hallado = estados.find(fila.clave(0));
        const Estado &e = hallado == estados.end() ? ninguno : hallado->second;
        return visitar({fila.clave(0), fila.texto(1), fila.texto(2), e.csde, e.importe, e.primero,
                        e.cuantos, e.anteriores});
    });
}

void cDeclaracion::BorrarDatosNoComunes(qint32 CSDE, const QString &modelo)
{
    const Modelo *tabla = modeloDe(modelo);
    if (!tabla)
        throw std::invalid_argument("unknown model");
    m_borrado.reset();
    auto transaccion = std::make_unique<Transaccion>(Conexion::datos(m_ruta));
    exigirSeguras(transaccion->conexion(), CSDE, modelo);
    if (Sentencia(transaccion->conexion(), tabla->borrar).con(CSDE).ejecutar() == 0)
        sinDeclaracion();
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
        sinDeclaracion();
    transaccion->confirmar();
}

} // namespace servidor
