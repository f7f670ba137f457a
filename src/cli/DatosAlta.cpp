#include "cli/DatosAlta.h"

#include "core/FiltroTeclas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/Listas.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString opcionDe(const campos::Definicion &campo)
{
    return campo.nombre.toString().toLower();
}

/// Fields whose value depends on a table, or is a number, have a check of their own.
static bool vaTalCual(campos::Campo campo)
{
    using enum RegDeclarante::Campo;
    return campo != NUMERO && campo != VIA && campo != CODPROV && campo != CODMUN;
}

static Rechazo valorMalo(QStringView opcion, const QString &valor)
{
    return rechazado(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
}

static QString texto(const Argumentos &argumentos, QStringView opcion)
{
    return argumentos.valor(opcion).trimmed().toUpper();
}

static Rechazo tomarTexto(const campos::Definicion &campo, const QString &valor)
{
    const QString opcion = conGuiones(opcionDe(campo));
    const auto malo = std::ranges::find_if_not(valor, admitidoEnFichero);
    if (malo != valor.end())
        return rechazado(msj(Msj::CliCaracterNoAdmitido, QString(*malo), opcion));
    if (valor.size() > campo.ancho)
        return rechazado(msj(Msj::CliDemasiadoLargo, opcion, QString::number(campo.ancho)));
    if (vaTalCual(campo.campo))
        campos::escribir(campo.campo, unico::la<cDecDatos>(), valor);
    return {};
}

static Rechazo tomarNumero(const QString &valor)
{
    if (!sonCifras(valor))
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
    unico::la<cDecDatos>().MODO(Modo::Alta);
    for (const auto &campo : campos::tabla) {
        if (campo.clase == campos::Clase::Contador)
            continue;
        if (auto fallo = tomarTexto(campo, texto(argumentos, opcionDe(campo))))
            return fallo;
    }
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
