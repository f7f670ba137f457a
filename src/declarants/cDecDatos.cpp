#include "declarants/cDecDatos.h"

#include "core/Servicios.h"
#include "core/Textos.h"

static QString conCeros(const QString &codigo, int ancho)
{
    return codigo.isEmpty() ? codigo : codigo.rightJustified(ancho, u'0');
}

Filas cDecDatos::ValidarDatosImportar(const Registro &datos) const
{
    auto servicio = servicio::crear<SvrOstr::cDeclarante>();
    servicio->mdbnameL(rutas().lectura);
    return servicio->ValidarDatosImportar(datos, desplazamientoIdioma());
}

void cDecDatos::MODO(const QString &modo)
{
    m_modo = modo;
    if (modo == Modo::Alta) {
        m_csco = 0;
        m = {};
    }
}

void cDecDatos::BorrarDeclarante() const
{
    servicioDeclarante()->BorrarDeclarante(m_csco);
}

void cDecDatos::CargarDeclarante(qint32 codigo)
{
    using enum RegDeclarante::Campo;
    Registro r;
    servicioDeclarante()->CargarDeclarante(codigo, r);
    m.dni = r.value(DNI).toString();
    m.nombre = r.value(NOMBRE).toString();
    m.via = r.value(VIA).toString();
    m.domicilio = r.value(DOMICILIO).toString();
    m.numero = r.value(NUMERO).toInt();
    m.letra = r.value(LETRA).toString();
    m.escalera = r.value(ESCALERA).toString();
    m.piso = r.value(PISO).toString();
    m.mano = r.value(MANO).toString();
    m.codprov = conCeros(r.value(CODPROV).toString(), 2);
    m.codpos = r.value(CODPOS).toString();
    m.codmun = r.value(CODMUN).toString();
    m.nommun = r.value(NOMMUN).toString();
    m.telefono = r.value(TELEFONO).toString();
    m.num430 = r.value(NUM430).toDouble();
    m.num480 = r.value(NUM480).toDouble();
    LeerNombreProvincia();
}

void cDecDatos::LeerNombreProvincia()
{
    m.nomprov.clear();
    servicioLectura()->ObtenerNombreProvincia(m.codprov, m.nomprov, desplazamientoIdioma());
}

qint16 cDecDatos::ValidarDatosDeclarante(const Registro &datos) const
{
    return servicio::crear<SvrOstr::cDeclarante>()->ValidarDatosDeclarante(datos);
}

qint32 cDecDatos::ObtenerCodigoDeclarante(const QString &dni) const
{
    return servicioDeclarante()->ObtenerCodigoDeclarante(dni);
}

qint16 cDecDatos::GuardarDeclarante(const Registro &datos) const
{
    return servicioDeclarante()->GuardarDeclarante(datos);
}

Registro cDecDatos::RegistroCompleto() const
{
    return {m_csco,   m.dni,      m.nombre,   m.via,    m.domicilio, m.numero,
            m.letra,  m.escalera, m.piso,     m.mano,   m.codprov,   m.codpos,
            m.codmun, m.nommun,   m.telefono, m.num430, m.num480};
}

Registro cDecDatos::RegistroValidacion() const
{
    return {m.dni, m.nombre, m.domicilio, m.codprov, m.codpos, m.codmun, m.nommun, m.telefono};
}

void cDecDatos::CambiarProvincia(const QString &codigo, const QString &nombre)
{
    m.codprov = conCeros(codigo, 2);
    m.nomprov = nombre;
    m.nommun.clear();
    if (!enProvinciaPropia())
        m.codmun.clear();
}
