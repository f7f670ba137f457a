#include "declarations/cDatos430.h"

#include "core/Importe.h"
#include "core/Servicios.h"
#include "core/Unico.h"
#include "declarations/RegistroDeclaracion.h"

using namespace Qt::StringLiterals;

void cDatos430::MODO(const QString &modo)
{
    if (modo == Modo::Alta)
        Nueva(CalcularTipo());
    m_modo = modo;
}

void cDatos430::Nueva(float tipo)
{
    Figuras nuevas;
    nuevas.tipoliq = nuevas.tipotot = redondearTipo(tipo);
    m = m_inicial = nuevas;
    m_cargado.olvidar();
    m_modo = Modo::Alta;
}

void cDatos430::BASELIQ(double centimos)
{
    m.baseliq = redondear(centimos, 0);
}

void cDatos430::TIPOLIQ(float tipo)
{
    m.tipoliq = redondearTipo(tipo);
}

void cDatos430::CUOTALIQ(double centimos)
{
    m.cuotaliq = redondear(centimos, 0);
}

void cDatos430::BASEREC(double centimos)
{
    m.baserec = redondear(centimos, 0);
}

void cDatos430::CUOTAREC(double centimos)
{
    m.cuotarec = redondear(centimos, 0);
}

void cDatos430::BASETOT(double centimos)
{
    m.basetot = redondear(centimos, 0);
}

void cDatos430::TIPOTOT(float tipo)
{
    m.tipotot = redondearTipo(tipo);
}

void cDatos430::CUOTATOT(double centimos)
{
    m.cuotatot = redondear(centimos, 0);
}

void cDatos430::CargarDeclaracion(qint32 codigo)
{
    const QByteArray huella = servicioDeclaracion()->Huella(codigo);
    const auto r = cargarDeclaracion(codigo, &SvrOstr::cDeclaracion::Cargar430);
    m.rectifica = r.value(Reg430::RECTIFICA).toString();
    m.baseliq = r.value(Reg430::BASELIQ).toDouble();
    m.tipoliq = r.value(Reg430::TIPOLIQ).toFloat();
    m.cuotaliq = r.value(Reg430::CUOTALIQ).toDouble();
    m.baserec = r.value(Reg430::BASEREC).toDouble();
    m.cuotarec = r.value(Reg430::CUOTAREC).toDouble();
    m.basetot = r.value(Reg430::BASETOT).toDouble();
    m.tipotot = r.value(Reg430::TIPOTOT).toFloat();
    m.cuotatot = r.value(Reg430::CUOTATOT).toDouble();
    m_inicial = m;
    m_cargado.tomar(huella);
}

qint16 cDatos430::ValidarDatos430(const Registro &datos) const
{
    return servicio::crear<SvrOstr::cDeclaracion>()->ValidarDatos430(datos);
}

void cDatos430::TomarGuardado(qint32 csde)
{
    m_modo = Modo::Consulta;
    CSDE(csde);
    m_inicial = m;
    m_cargado.olvidar();
}

EstadoCarga cDatos430::CambioDesdeCarga() const
{
    return m_cargado.comparar(servicioDeclaracion()->Huella(CSDE()));
}

qint32 cDatos430::GuardarDeclaracion(const Registro &datos) const
{
    return servicioDeclaracion()->Guardar430(datos);
}

float cDatos430::CalcularTipo() const
{
    const auto &cabecera = unico::la<cDecResumen>();
    return servicioLectura()->ObtenerTipoImpositivo(cabecera.EJERCICIO(), cabecera.PERIODO());
}

void cDatos430::CalcularValores()
{
    CUOTALIQ(calcularCuota(m.tipoliq, m.baseliq));
    BASETOT(m.baserec + m.baseliq);
    CUOTATOT(m.cuotarec + m.cuotaliq);
}

bool cDatos430::cabe() const
{
    return cabeEnCasilla(m.cuotaliq) && cabeEnCasilla(m.basetot) && cabeEnCasilla(m.cuotatot);
}

void cDatos430::MarcarRectificacion(bool marcada)
{
    m.rectifica = marcada ? u"X"_s : QString();
    if (!marcada)
        m.baserec = m.cuotarec = 0;
}

Registro cDatos430::RegistroValidar() const
{
    return {m.rectifica, m.baseliq, m.baserec, m.cuotarec};
}

Registro cDatos430::RegistroGuardar() const
{
    return cabeceraGuardar(m.csde) + Registro{m.rectifica, m.baseliq, m.tipoliq,
                                              m.cuotaliq,  m.baserec, m.cuotarec,
                                              m.basetot,   m.tipotot, m.cuotatot};
}
