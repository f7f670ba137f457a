#include "declarants/cDecResumen.h"

#include "core/CEntrada.h"
#include "core/Periodos.h"
#include "core/Servicios.h"
#include "core/Unico.h"

/// The header's five elements of a service's row, from `primero` on.
static CabeceraListada cabeceraDe(const Registro &fila, qsizetype primero)
{
    return {fila.value(primero).value<qint16>(), fila.value(primero + 1).value<quint8>(),
            fila.value(primero + 2).value<quint8>(), fila.value(primero + 3).toString(),
            fila.value(primero + 4).value<quint8>()};
}

void cDecResumen::MODO(const QString &modo)
{
    m_modo = modo;
    m = {};
    if (modo != ModoCabecera::Lista)
        proponer();
}

void cDecResumen::proponer()
{
    Registro ultima;
    if (!ObtenerUltimaDeclaracion(ultima))
        return;
    m = cabeceraDe(ultima, RegUltima::EJERCICIO);
    avanzar();
    if (!servicioDeclaracion()->EjerPerValidos(Cabecera().first(RegCabecera::TotalPeriodo)))
        m = {};
}

void cDecResumen::avanzar()
{
    if (m.tipologia != Tipologia430) {
        m.tipologia = Tipologia430;
        m.modelo = Modelo430;
        m.periodicidad = PeriodicidadMensual;
        m.periodo = 1;
        ++m.ejercicio;
    } else if (m.periodo == UltimoMes) {
        m.tipologia = Tipologia480;
        m.modelo = Modelo480;
        m.periodicidad = PeriodicidadAnual;
    } else {
        ++m.periodo;
    }
}

bool cDecResumen::ObtenerUltimaDeclaracion(Registro &datos) const
{
    datos = {m_csco};
    qint32 csde = 0;
    return servicioDeclaracion()->ObtenerUltimaDeclaracion(datos, csde);
}

qint16 cDecResumen::ValidarDatosComunes(const Registro &datos) const
{
    return servicioDeclaracion()->ValidarDatosComunes(datos);
}

Registro cDecResumen::Cabecera() const
{
    const auto &entrada = unico::la<CEntrada>();
    return {m.ejercicio,       m.periodicidad,   m.periodo,
            entrada.EJERMIN(), entrada.PERMIN(), entrada.EJERMAX(),
            entrada.PERMAX(),  m.modelo,         m_csco};
}

void cDecResumen::CambiarModelo(const QString &modelo)
{
    const bool eraAnual = m.periodicidad == PeriodicidadAnual;
    const bool anual = modelo == Modelo480;
    m.modelo = modelo;
    m.periodicidad = anual ? PeriodicidadAnual : PeriodicidadMensual;
    m.tipologia = anual ? Tipologia480 : Tipologia430;
    if (anual)
        m.periodo = PeriodoAnual;
    else if (eraAnual)
        m.periodo = 0;
}

void cDecResumen::TomarDeclarante(qint32 csco, const QString &dni, const QString &nombre)
{
    m_csco = csco;
    m_dni = dni;
    m_nombre = nombre;
}

void cDecResumen::TomarDeclaracion(const DeclaracionListada &declaracion)
{
    m_csde = declaracion.csde;
    m = declaracion;
}

QList<DeclaracionListada> cDecResumen::CargarDeclaraciones()
{
    using enum FilaDeclaracion::Columna;
    Filas filas;
    m_numdeclasel = servicioDeclaracion()->dameResultado(filas, m_csco);
    QList<DeclaracionListada> lista;
    for (const QVariant &fila : std::as_const(filas)) {
        const auto celdas = fila.toList();
        lista.append({cabeceraDe(celdas, EJERCICIO), celdas.value(CSDE).toInt(),
                      celdas.value(IMPORTE).toDouble()});
    }
    return lista;
}

void cDecResumen::BorrarDeclaracion(const DeclaracionListada &declaracion) const
{
    auto servicio = servicioDeclaracion();
    servicio->BorrarDatosNoComunes(declaracion.csde, declaracion.modelo);
    servicio->BorrarDeclaracion(declaracion.csde);
}
