#include "declarants/cDecResumen.h"

#include "core/CEntrada.h"
#include "core/Periodos.h"
#include "core/Servicios.h"
#include "core/Unico.h"

void cDecResumen::MODO(const QString &modo)
{
    m_modo = modo;
    m = {};
    if (modo != u"L")
        proponer();
}

void cDecResumen::proponer()
{
    Registro ultima;
    if (!ObtenerUltimaDeclaracion(ultima))
        return;
    m.ejercicio = ultima.value(RegUltima::EJERCICIO).value<qint16>();
    m.periodicidad = ultima.value(RegUltima::PERIODICIDAD).value<quint8>();
    m.periodo = ultima.value(RegUltima::PERIODO).value<quint8>();
    m.modelo = ultima.value(RegUltima::MODELO).toString();
    m.tipologia = ultima.value(RegUltima::TIPOLOGIA).value<quint8>();
    avanzar();
    if (!servicioDeclaracion()->EjerPerValidos(Cabecera().first(RegCabecera::TotalPeriodo)))
        m = {};
}

void cDecResumen::avanzar()
{
    if (m.tipologia != Tipologia430) {
        m.tipologia = Tipologia430;
        m.modelo = Modelo430.toString();
        m.periodicidad = PeriodicidadMensual;
        m.periodo = 1;
        ++m.ejercicio;
    } else if (m.periodo == 12) {
        m.tipologia = Tipologia480;
        m.modelo = Modelo480.toString();
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

Filas cDecResumen::CargarDeclaraciones()
{
    Filas filas;
    m_numdeclasel = servicioDeclaracion()->dameResultado(filas, m_csco);
    return filas;
}

void cDecResumen::BorrarDeclaracion(qint32 csde, const QString &modelo) const
{
    auto servicio = servicioDeclaracion();
    servicio->BorrarDatosNoComunes(csde, modelo);
    servicio->BorrarDeclaracion(csde);
}
