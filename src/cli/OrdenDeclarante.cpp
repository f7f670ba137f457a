#include "cli/Linea.h"
#include "core/Caracteres.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/CamposDeclarante.h"
#include "declarants/Listas.h"
#include "declarants/MensajesDeclarante.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The option of a field: its property's name in small letters.
static QString opcionDe(const campos::Definicion &campo)
{
    return campo.nombre.toString().toLower();
}

/// Fields whose value depends on a table, or is a number, have a check of their own.
static bool vaTalCual(campos::Campo campo)
{
    using enum RegDeclarante::Campo;
    return campo != NUMERO && campo != VIA && campo != CODPROV && campo != CODMUN;
}

static QString texto(const Argumentos &argumentos, QStringView opcion)
{
    return argumentos.valor(opcion).trimmed().toUpper();
}

static Rechazo valorRechazado(QStringView opcion, const QString &valor)
{
    return rechazado(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
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
        return valorRechazado(u"numero", valor);
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
        return codigo.isEmpty() ? Rechazo() : valorRechazado(u"codmun", codigo);
    }
    if (codigo.isEmpty())
        return {};
    auto fallo
        = tomarCodigo(u"codmun", codigo, cargarMunicipios(), [&](const ElementoLista &municipio) {
              declarante.CODMUN(municipio.codigo.rightJustified(3, u'0'));
              declarante.NOMMUN(municipio.nombre);
          });
    if (!fallo && !nombre.isEmpty() && nombre != declarante.NOMMUN())
        return valorRechazado(u"nommun", nombre);
    return fallo;
}

/// Makes the declarant record a new one of the options given.
static Rechazo tomarDatosAlta(const Argumentos &argumentos)
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

static Resultado declaranteAlta(const Argumentos &argumentos)
{
    if (auto fallo = tomarDatosAlta(argumentos))
        return *fallo;
    const auto &declarante = unico::la<cDecDatos>();
    const qint16 regla = declarante.ValidarDatosDeclarante(declarante.RegistroValidacion());
    if (regla != 0)
        return rechazado(
            msj(Msj::CliOpcionMal,
                conGuiones(opcionDe(campos::deValidacion(campoValidacionDeclarante(regla)))),
                textoValidacionDeclarante(regla)));
    const qint16 guardado = declarante.GuardarDeclarante(declarante.RegistroCompleto());
    if (guardado != 0)
        return rechazado(textoGuardarDeclarante(guardado));
    return hecho(msj(Msj::CliDeclaranteAlta, declarante.DNI(), declarante.NOMBRE()));
}

static constexpr Opcion Opciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"nombre", u"TEXTO", Msj::AyudaNombre, Opcion::Obligatoria},
    {u"domicilio", u"TEXTO", Msj::AyudaDomicilio, Opcion::Obligatoria},
    {u"codpos", u"NNNNN", Msj::AyudaCodpos, Opcion::Obligatoria},
    {u"telefono", u"NNNNNNNNN", Msj::AyudaTelefono, Opcion::Obligatoria},
    {u"codmun", u"NNN", Msj::AyudaCodmun},
    {u"via", u"SIGLA", Msj::AyudaVia},
    {u"numero", u"N", Msj::AyudaNumero},
    {u"letra", u"L", Msj::AyudaLetra},
    {u"escalera", u"E", Msj::AyudaEscalera},
    {u"piso", u"P", Msj::AyudaPiso},
    {u"mano", u"M", Msj::AyudaMano},
    {u"codprov", u"NN", Msj::AyudaCodprov},
    {u"nommun", u"TEXTO", Msj::AyudaNommun},
};

extern constinit const Orden OrdenDeclaranteAlta = {
    u"declarante alta", Msj::AyudaAlta, {}, Opciones, Msj::NoSePudoGuardar, declaranteAlta,
};
