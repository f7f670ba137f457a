#include "declarants/CamposDeclarante.h"

#include "core/Importe.h"

#include <algorithm>

namespace campos {

using D = cDecDatos;
using enum Imagen;
namespace V = RegValidacion;

// clang-format off
const std::array<Definicion, Total> tabla{{
    {u"txtdni",       Msj::EtiquetaDni,              true,   9, Tal,       Texto{&D::DNI, &D::DNI}, V::DNI},
    {u"txtnombre",    Msj::EtiquetaRazonSocial,      true,  40, Tal,       Texto{&D::NOMBRE, &D::NOMBRE}, V::NOMBRE},
    {u"txtvia",       Msj::EtiquetaVia,              true,   2, Tal,       Texto{&D::VIA, &D::VIA}},
    {u"txtviaaux",    Msj::AccesibleNombreVia,       false, 20, Tal,       {}},
    {u"txtdomicilio", Msj::EtiquetaDomicilio,        true,  20, Tal,       Texto{&D::DOMICILIO, &D::DOMICILIO}, V::DOMICILIO},
    {u"txtnumero",    Msj::EtiquetaNumero,           true,   5, Entero,    Numero{&D::NUMERO, &D::NUMERO}},
    {u"txtletra",     Msj::EtiquetaLetra,            true,   2, Tal,       Texto{&D::LETRA, &D::LETRA}},
    {u"txtescalera",  Msj::EtiquetaEscalera,         true,   2, Tal,       Texto{&D::ESCALERA, &D::ESCALERA}},
    {u"txtpiso",      Msj::EtiquetaPiso,             true,   2, Tal,       Texto{&D::PISO, &D::PISO}},
    {u"txtmano",      Msj::EtiquetaMano,             true,   3, Tal,       Texto{&D::MANO, &D::MANO}},
    {u"txtcodprov",   Msj::AccesibleCodigoProvincia, false,  2, Dos,       Texto{&D::CODPROV, &D::CODPROV}, V::CODPROV},
    {u"txtnomprov",   Msj::EtiquetaNombreProvincia,  true,  20, Tal,       Texto{&D::NOMPROV, &D::NOMPROV}},
    {u"txtcodpos",    Msj::EtiquetaCodigoPostal,     true,   5, Cinco,     Texto{&D::CODPOS, &D::CODPOS}, V::CODPOS},
    {u"txtcodmun",    Msj::AccesibleCodigoMunicipio, false,  3, Municipio, Texto{&D::CODMUN, &D::CODMUN}, V::CODMUN},
    {u"txtnommun",    Msj::EtiquetaNombreMunicipio,  true,  25, Tal,       Texto{&D::NOMMUN, &D::NOMMUN}, V::NOMMUN},
    {u"txttelefono",  Msj::EtiquetaTelefono,         true,   9, Tal,       Texto{&D::TELEFONO, &D::TELEFONO}, V::TELEFONO},
    {u"txtnum430",    Msj::EtiquetaNum430,           true,   9, Miles,     Contador{&D::NUM430}},
    {u"txtnum480",    Msj::EtiquetaNum480,           true,   9, Miles,     Contador{&D::NUM480}},
}};
// clang-format on

static QString rellenar(const QString &texto, int cifras)
{
    return texto.isEmpty() ? texto : texto.rightJustified(cifras, u'0');
}

static QString sinCeros(const QString &texto)
{
    const int numero = texto.toInt();
    return numero == 0 ? QString() : QString::number(numero);
}

QString valor(Campo campo, const QString &texto)
{
    switch (tabla[campo].imagen) {
    case Dos:
        return rellenar(texto, 2);
    case Cinco:
        return rellenar(texto, 5);
    case Municipio:
        return rellenar(sinCeros(texto), 3);
    case Entero:
    case Miles:
        return sinCeros(texto);
    case Tal:
        break;
    }
    return texto;
}

static QString leer(const Propiedad &propiedad, const cDecDatos &datos)
{
    if (const auto *texto = std::get_if<Texto>(&propiedad))
        return (datos.*texto->leer)();
    if (const auto *numero = std::get_if<Numero>(&propiedad))
        return sinCeros(QString::number((datos.*numero->leer)()));
    if (const auto *contador = std::get_if<Contador>(&propiedad))
        return textoImporte((datos.*contador->leer)() * 100).chopped(3);
    return {};
}

QString presentar(Campo campo, const cDecDatos &datos)
{
    const QString guardado = leer(tabla[campo].propiedad, datos);
    return tabla[campo].imagen == Municipio ? sinCeros(guardado) : guardado;
}

bool tomar(Campo campo, cDecDatos &datos, const QString &texto)
{
    const auto &propiedad = tabla[campo].propiedad;
    const QString nuevo = valor(campo, texto);
    if (nuevo == leer(propiedad, datos))
        return false;
    if (const auto *enTexto = std::get_if<Texto>(&propiedad))
        (datos.*enTexto->escribir)(nuevo);
    else if (const auto *enNumero = std::get_if<Numero>(&propiedad))
        (datos.*enNumero->escribir)(nuevo.toInt());
    return true;
}

Campo deValidacion(int elemento)
{
    const auto hallado = std::ranges::find(tabla, elemento, &Definicion::validacion);
    return static_cast<Campo>(hallado - tabla.begin());
}

bool soloCifras(Campo campo)
{
    return tabla[campo].imagen != Tal;
}

} // namespace campos
