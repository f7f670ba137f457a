#include "declarants/CajasDeclarante.h"

#include "core/Importe.h"

#include <algorithm>

namespace cajas {

namespace R = RegDeclarante;

// clang-format off
const std::array<Definicion, Total> tabla{{
    {u"txtdni",       Msj::EtiquetaDni,              true,  R::DNI},
    {u"txtnombre",    Msj::EtiquetaRazonSocial,      true,  R::NOMBRE},
    {u"txtvia",       Msj::EtiquetaVia,              true,  R::VIA},
    {u"txtviaaux",    Msj::AccesibleNombreVia,       false, R::CSCO, 20},
    {u"txtdomicilio", Msj::EtiquetaDomicilio,        true,  R::DOMICILIO},
    {u"txtnumero",    Msj::EtiquetaNumero,           true,  R::NUMERO},
    {u"txtletra",     Msj::EtiquetaLetra,            true,  R::LETRA},
    {u"txtescalera",  Msj::EtiquetaEscalera,         true,  R::ESCALERA},
    {u"txtpiso",      Msj::EtiquetaPiso,             true,  R::PISO},
    {u"txtmano",      Msj::EtiquetaMano,             true,  R::MANO},
    {u"txtcodprov",   Msj::AccesibleCodigoProvincia, false, R::CODPROV},
    {u"txtnomprov",   Msj::EtiquetaNombreProvincia,  true,  R::CSCO, 20},
    {u"txtcodpos",    Msj::EtiquetaCodigoPostal,     true,  R::CODPOS},
    {u"txtcodmun",    Msj::AccesibleCodigoMunicipio, false, R::CODMUN},
    {u"txtnommun",    Msj::EtiquetaNombreMunicipio,  true,  R::NOMMUN},
    {u"txttelefono",  Msj::EtiquetaTelefono,         true,  R::TELEFONO},
    {u"txtnum430",    Msj::EtiquetaNum430,           true,  R::NUM430, 9},
    {u"txtnum480",    Msj::EtiquetaNum480,           true,  R::NUM480, 9},
}};
// clang-format on

static bool esCampo(Cual caja)
{
    return tabla[caja].campo != R::CSCO;
}

int limite(Cual caja)
{
    const auto &d = tabla[caja];
    return d.letras > 0 ? d.letras : campos::definicion(d.campo).ancho;
}

bool soloCifras(Cual caja)
{
    return esCampo(caja) && campos::soloCifras(campos::definicion(tabla[caja].campo).clase);
}

QString presentar(Cual caja, const cDecDatos &datos)
{
    if (caja == NOMPROV)
        return datos.NOMPROV();
    if (!esCampo(caja))
        return {};
    const auto &campo = campos::definicion(tabla[caja].campo);
    QString guardado = campos::leer(campo.campo, datos);
    if (campo.clase == campos::Clase::Contador)
        return guardado == u"0" ? QString() : textoImporte(guardado.toDouble() * 100).chopped(3);
    if (campo.clase != campos::Clase::Numero && caja != CODMUN) // shown without its zeros
        return guardado;
    const int numero = guardado.toInt();
    return numero == 0 ? QString() : QString::number(numero);
}

bool tomar(Cual caja, cDecDatos &datos, const QString &texto)
{
    return esCampo(caja) && campos::tomar(tabla[caja].campo, datos, texto);
}

Cual deValidacion(int elemento)
{
    const auto campo = campos::deValidacion(elemento).campo;
    return static_cast<Cual>(std::ranges::find(tabla, campo, &Definicion::campo) - tabla.begin());
}

} // namespace cajas
