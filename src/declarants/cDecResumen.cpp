#include "declarants/cDecResumen.h"

#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"

using namespace Qt::StringLiterals;

/// The header's five elements of a service's row, from `primero` on.
static CabeceraListada cabeceraDe(const Registro &fila, qsizetype primero)
{
    return {fila.value(primero).value<qint16>(), fila.value(primero + 1).value<quint8>(),
            fila.value(primero + 2).value<quint8>(), fila.value(primero + 3).toString(),
            fila.value(primero + 4).value<quint8>()};
}

/// The return that follows.
static void avanzar(CabeceraListada &c)
{
    if (c.tipologia != Tipologia430) {
        c.tipologia = Tipologia430;
        c.modelo = Modelo430;
        c.periodicidad = PeriodicidadMensual;
        c.periodo = 1;
        ++c.ejercicio;
    } else if (c.periodo == UltimoMes) {
        c.tipologia = Tipologia480;
        c.modelo = Modelo480;
        c.periodicidad = PeriodicidadAnual;
    } else {
        ++c.periodo;
    }
}

QString CabeceraListada::nombre() const
{
    return modelo + u' ' + textoPeriodo(periodicidad, periodo) + u' ' + QString::number(ejercicio);
}

static int cuentaDeMes(const CabeceraListada &c)
{
    return cuentaDeMes(c.ejercicio, c.periodo);
}

static constexpr qsizetype MaximoMeses = 12; ///< named one by one

QString textoMeses(const QList<MesSinDeclarar> &meses)
{
    QString texto;
    int ejercicio = 0;
    for (const auto &mes : meses.first(std::min(meses.size(), MaximoMeses))) {
        if (mes.ejercicio != ejercicio)
            texto += (texto.isEmpty() ? u"%1: "_s : u"; %1: "_s).arg(mes.ejercicio);
        else
            texto += u", "_s;
        ejercicio = mes.ejercicio;
        texto += nombreMes(mes.mes);
    }
    return meses.size() > MaximoMeses ? texto + u"…"_s : texto;
}

void cDecResumen::MODO(const QString &modo)
{
    m = modo == ModoCabecera::Lista ? CabeceraListada() : proponer();
    m_modo = modo;
}

void cDecResumen::Proponer(const CabeceraListada &cabecera)
{
    m = cabecera;
    m_modo = ModoCabecera::Nueva;
}

CabeceraListada cDecResumen::proponer() const
{
    Registro ultima;
    if (!ObtenerUltimaDeclaracion(ultima))
        return {};
    auto propuesta = cabeceraDe(ultima, RegUltima::EJERCICIO);
    avanzar(propuesta);
    const Registro registro = registroDe(propuesta).first(RegCabecera::TotalPeriodo);
    return servicioDeclaracion()->EjerPerValidos(registro) ? propuesta : CabeceraListada();
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
    return registroDe(m);
}

Registro cDecResumen::registroDe(const CabeceraListada &c) const
{
    const auto &entrada = unico::la<CEntrada>();
    return {c.ejercicio,       c.periodicidad,   c.periodo,
            entrada.EJERMIN(), entrada.PERMIN(), entrada.EJERMAX(),
            entrada.PERMAX(),  c.modelo,         m_csco};
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
    m_mensuales.clear();
    for (const QVariant &fila : std::as_const(filas)) {
        const auto celdas = fila.toList();
        lista.append({cabeceraDe(celdas, EJERCICIO), celdas.value(CSDE).toInt(),
                      celdas.value(IMPORTE).toDouble(), celdas.value(IMPORTE).isNull()});
        if (lista.constLast().tipologia == Tipologia430)
            m_mensuales.append(cuentaDeMes(lista.constLast()));
    }
    return lista;
}

QList<MesSinDeclarar> cDecResumen::MesesSinDeclarar() const
{
    QList<MesSinDeclarar> meses;
    if (m.periodo == 0 || m_mensuales.isEmpty())
        return meses;
    // the annual return counts its own December
    const int hasta = cuentaDeMes(m) + (m.tipologia == Tipologia480 ? 1 : 0);
    for (int mes = m_mensuales.constFirst(); mes < hasta; ++mes)
        if (!m_mensuales.contains(mes))
            meses.append(mesDeCuenta(mes));
    return meses;
}

void cDecResumen::BorrarDeclaracion(const DeclaracionListada &declaracion) const
{
    if (declaracion.modelo.isEmpty()) // it may be anybody's
        throw ErrorDatos(Fallo::RegistroDanado, nombreDeclaracionDanada(declaracion.csde));
    auto servicio = servicioDeclaracion();
    servicio->BorrarDatosNoComunes(declaracion.csde, declaracion.modelo);
    servicio->BorrarDeclaracion(declaracion.csde);
}
