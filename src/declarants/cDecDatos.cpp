#include "declarants/cDecDatos.h"

#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"

using namespace Qt::StringLiterals;

static QString conCeros(const QString &codigo, int ancho)
{
    return codigo.isEmpty() ? codigo : codigo.rightJustified(ancho, u'0');
}

static QString nombreProvincia(const QString &codigo)
{
    QString nombre;
    servicioLectura()->ObtenerNombreProvincia(codigo, nombre, desplazamientoIdioma());
    return nombre;
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
        m_cargado.olvidar();
    }
}

void cDecDatos::BorrarDeclarante() const
{
    servicioDeclarante()->BorrarDeclarante(m_csco);
}

void cDecDatos::CargarDeclarante(qint32 codigo)
{
    using enum RegDeclarante::Campo;
    const auto &resumen = unico::la<cDecResumen>();
    const QString nombre
        = resumen.CSCO() == codigo ? resumen.DNI() + u" - "_s + resumen.NOMBRE() : QString();
    Registro r;
    const QByteArray huella = servicioDeclarante()->Huella(codigo);
    nombrando(nombre, [&] { servicioDeclarante()->CargarDeclarante(codigo, r); });
    const QString codprov = conCeros(r.value(CODPROV).toString(), 2);
    const QString nomprov = nombreProvincia(codprov);
    m = {
        .dni = r.value(DNI).toString(),
        .nombre = r.value(NOMBRE).toString(),
        .via = r.value(VIA).toString(),
        .domicilio = r.value(DOMICILIO).toString(),
        .numero = r.value(NUMERO).toInt(),
        .letra = r.value(LETRA).toString(),
        .escalera = r.value(ESCALERA).toString(),
        .piso = r.value(PISO).toString(),
        .mano = r.value(MANO).toString(),
        .codprov = codprov,
        .nomprov = nomprov,
        .codpos = r.value(CODPOS).toString(),
        .codmun = r.value(CODMUN).toString(),
        .nommun = r.value(NOMMUN).toString(),
        .telefono = r.value(TELEFONO).toString(),
        .num430 = r.value(NUM430).toDouble(),
        .num480 = r.value(NUM480).toDouble(),
    };
    m_cargado.tomar(huella);
}

void cDecDatos::LeerNombreProvincia()
{
    m.nomprov = nombreProvincia(m.codprov);
}

EstadoCarga cDecDatos::CambioDesdeCarga() const
{
    return m_cargado.comparar(servicioDeclarante()->Huella(m_csco));
}

qint16 cDecDatos::ValidarDatosDeclarante(const Registro &datos) const
{
    return servicio::crear<SvrOstr::cDeclarante>()->ValidarDatosDeclarante(datos);
}

qint32 cDecDatos::ObtenerCodigoDeclarante(const QString &dni) const
{
    return servicioDeclarante()->ObtenerCodigoDeclarante(dni);
}

void cDecDatos::TomarGuardado()
{
    if (m_csco == 0)
        m_csco = ObtenerCodigoDeclarante(m.dni);
    m_cargado.tomar(servicioDeclarante()->Huella(m_csco));
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
