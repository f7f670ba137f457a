#include "support/Entorno.h"

#include "core/CEntrada.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "server/Servidor.h"

#include <QCoreApplication>
#include <QEvent>

#include <stdexcept>

using namespace Qt::StringLiterals;

static void exigir(bool cierto, const char *que)
{
    if (!cierto)
        throw std::runtime_error(que);
}

Entorno::Entorno(const QString &idioma)
{
    exigir(m_carpeta.isValid(), "no temporary folder");
    registrarServidor();
    fijarRutas(Rutas::desde(m_carpeta.path()));
    unico::reiniciar();
    m_inicio = iniciarSesion();
    if (!idioma.isEmpty())
        unico::la<CEntrada>().IDI(idioma);
}

qint32 Entorno::altaDeclarante(const QString &dni, const QString &nombre)
{
    cDecDatos nuevo;
    nuevo.MODO(u"A"_s);
    nuevo.DNI(dni);
    nuevo.NOMBRE(nombre);
    nuevo.DOMICILIO(u"MAYOR"_s);
    nuevo.CODPOS(u"20001"_s);
    nuevo.CODMUN(u"001"_s);
    nuevo.NOMMUN(u"ABRENZUOLA"_s);
    nuevo.TELEFONO(u"943000000"_s);
    exigir(nuevo.ValidarDatosDeclarante(nuevo.RegistroValidacion()) == 0, "invalid declarant");
    exigir(nuevo.GuardarDeclarante(nuevo.RegistroCompleto()) == 0, "declarant not saved");
    return nuevo.ObtenerCodigoDeclarante(dni);
}

qint32 Entorno::altaDeclaracion(qint32 csco, qint16 ejercicio, quint8 periodo,
                                const QString &modelo)
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.CSCO(csco);
    cabecera.EJERCICIO(ejercicio);
    cabecera.CambiarModelo(modelo);
    cabecera.PERIODO(periodo);
    const qint32 csde = modelo == u"480"
        ? cDatos480().GuardarDeclaracion(cDatos480().RegistroGuardar())
        : cDatos430().GuardarDeclaracion(cDatos430().RegistroGuardar());
    exigir(csde > 0, "return not saved");
    return csde;
}

void Entorno::pasarAEuskera(QObject &pantalla)
{
    unico::la<CEntrada>().IDI(u"E"_s);
    QEvent cambio(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&pantalla, &cambio);
}

ModeloPerdido::ModeloPerdido()
{
    Rutas malas = m_buenas;
    malas.datos = malas.tablas + u"ninguna/OstrMod.mdb"_s;
    fijarRutas(malas);
}
