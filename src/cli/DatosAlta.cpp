#include "cli/DatosAlta.h"

#include "core/FiltroTeclas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/Listas.h"
#include "declarants/cDecDatos.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// An option, the width that it may have and where it goes; those that depend on a table have no
/// place of their own.
struct CampoAlta
{
    QStringView opcion;
    int ancho;
    void (cDecDatos::*escribir)(const QString &) = nullptr;
};

static constexpr CampoAlta Campos[] = {
    {u"dni", 9, &cDecDatos::DNI},
    {u"nombre", 40, &cDecDatos::NOMBRE},
    {u"domicilio", 20, &cDecDatos::DOMICILIO},
    {u"codpos", 5, &cDecDatos::CODPOS},
    {u"telefono", 9, &cDecDatos::TELEFONO},
    {u"letra", 2, &cDecDatos::LETRA},
    {u"escalera", 2, &cDecDatos::ESCALERA},
    {u"piso", 2, &cDecDatos::PISO},
    {u"mano", 3, &cDecDatos::MANO},
    {u"nommun", 25, &cDecDatos::NOMMUN},
    {u"numero", 5},
    {u"via", 2},
    {u"codprov", 2},
    {u"codmun", 3},
};

static Rechazo valorMalo(QStringView opcion, const QString &valor)
{
    return rechazado(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
}

static QString texto(const Argumentos &argumentos, QStringView opcion)
{
    return argumentos.valor(opcion).trimmed().toUpper();
}

static Rechazo tomarTexto(const CampoAlta &campo, const QString &valor)
{
    const QString opcion = conGuiones(campo.opcion);
    const auto malo = std::ranges::find_if_not(valor, admitidoEnFichero);
    if (malo != valor.end())
        return rechazado(msj(Msj::CliCaracterNoAdmitido, QString(*malo), opcion));
    if (valor.size() > campo.ancho)
        return rechazado(msj(Msj::CliDemasiadoLargo, opcion, QString::number(campo.ancho)));
    if (campo.escribir)
        (unico::la<cDecDatos>().*campo.escribir)(valor);
    return {};
}

static Rechazo tomarNumero(const QString &valor)
{
    if (!std::ranges::all_of(valor, [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return valorMalo(u"numero", valor);
    unico::la<cDecDatos>().NUMERO(valor.toInt());
    return {};
}

/// Looks `valor` up in its table and hands the element found to `usar`.
template <class Usar>
static Rechazo tomarCodigo(QStringView opcion, const QString &valor, const ListaCodigos &lista,
                           Usar &&usar)
{
    const ElementoLista *elemento = buscarCodigo(lista, valor);
    if (!elemento)
        return rechazado(msj(Msj::CliCodigoNoExiste, conGuiones(opcion), valor));
    usar(*elemento);
    return {};
}

static Rechazo tomarVia(const QString &valor)
{
    return tomarCodigo(u"via", valor, cargarVias(),
                       [](const ElementoLista &via) { unico::la<cDecDatos>().VIA(via.codigo); });
}

static Rechazo tomarProvincia(const QString &valor)
{
    return tomarCodigo(u"codprov", valor, cargarProvincias(), [](const ElementoLista &provincia) {
        unico::la<cDecDatos>().CambiarProvincia(provincia.codigo, provincia.nombre);
    });
}

/// Only the home province has municipality codes; there the name is the code's.
static Rechazo tomarMunicipio(const QString &codigo, const QString &nombre)
{
    auto &declarante = unico::la<cDecDatos>();
    if (!declarante.enProvinciaPropia()) {
        declarante.NOMMUN(nombre);
        return codigo.isEmpty() ? Rechazo() : valorMalo(u"codmun", codigo);
    }
    if (codigo.isEmpty())
        return {};
    auto fallo
        = tomarCodigo(u"codmun", codigo, cargarMunicipios(), [&](const ElementoLista &municipio) {
              declarante.CODMUN(municipio.codigo.rightJustified(3, u'0'));
              declarante.NOMMUN(municipio.nombre);
          });
    if (!fallo && !nombre.isEmpty() && nombre != declarante.NOMMUN())
        return valorMalo(u"nommun", nombre);
    return fallo;
}

Rechazo tomarDatosAlta(const Argumentos &argumentos)
{
    unico::la<cDecDatos>().MODO(u"A"_s);
    for (const CampoAlta &campo : Campos)
        if (auto fallo = tomarTexto(campo, texto(argumentos, campo.opcion)))
            return fallo;
    if (auto fallo = tomarNumero(texto(argumentos, u"numero")))
        return fallo;
    if (argumentos.tiene(u"via"))
        if (auto fallo = tomarVia(texto(argumentos, u"via")))
            return fallo;
    if (argumentos.tiene(u"codprov"))
        if (auto fallo = tomarProvincia(texto(argumentos, u"codprov")))
            return fallo;
    return tomarMunicipio(texto(argumentos, u"codmun"), texto(argumentos, u"nommun"));
}
