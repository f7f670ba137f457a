#include "cli/Orden.h"
#include "core/CEntrada.h"
#include "core/Modos.h"
#include "core/Textos.h"
#include "core/Unico.h"

#include <algorithm>

using namespace Qt::StringLiterals;

extern const Orden OrdenDeclaranteAlta;
extern const Orden OrdenDeclarar430;
extern const Orden OrdenDeclarar480;
extern const Orden OrdenDeclararDesde;
extern const Orden OrdenPendientes;
extern const Orden OrdenListarDeclarantes;
extern const Orden OrdenListarDeclaraciones;
extern const Orden OrdenImprimir;
extern const Orden OrdenImportar;
extern const Orden OrdenExportar;
extern const Orden OrdenCopia;
extern const Orden OrdenRestaurar;
extern const Orden OrdenCompletado;

static Resultado idioma(const Argumentos &argumentos)
{
    auto &entrada = unico::la<CEntrada>();
    const QString codigo = argumentos.argumento.toUpper();
    if (codigo == CodigoIdioma::Castellano || codigo == CodigoIdioma::Euskera)
        entrada.IDI(codigo);
    else if (!codigo.isEmpty())
        return malUso(msj(Msj::CliIdiomaNoValido, argumentos.argumento));
    const bool euskera = entrada.IDI() == CodigoIdioma::Euskera;
    const QString actual = euskera ? CodigoIdioma::Euskera : CodigoIdioma::Castellano;
    const QString nombre = msj(euskera ? Msj::IdiomaEuskera : Msj::IdiomaCastellano).remove(u'&');
    return hecho(msj(Msj::CliIdioma, u"%1 (%2)"_s.arg(actual, nombre)));
}

static constexpr Orden OrdenIdioma = {
    u"idioma", Msj::AyudaIdioma, u"[C|E]", {}, Msj::NoSePudoGuardar, idioma,
};

static constexpr const Orden *Tabla[] = {
    &OrdenDeclaranteAlta, &OrdenDeclarar430,       &OrdenDeclarar480,
    &OrdenDeclararDesde, // after those whose names begin as its does
    &OrdenPendientes,     &OrdenListarDeclarantes, &OrdenListarDeclaraciones,
    &OrdenImprimir,       &OrdenImportar,          &OrdenExportar,
    &OrdenCopia,          &OrdenRestaurar,         &OrdenIdioma,
    &OrdenCompletado,
};

static constexpr Opcion Comunes[] = {
    {Comun::Carpeta, u"DIR", Msj::AyudaCarpeta},
    {Comun::Ayuda, {}, Msj::AyudaAyuda},
    {Comun::Version, {}, Msj::CliAyudaVersion},
};

std::span<const Orden *const> ordenes()
{
    return Tabla;
}

std::span<const Opcion> opcionesComunes()
{
    return Comunes;
}

qsizetype numeroPalabras(const Orden &orden)
{
    return orden.palabras.count(u' ') + 1;
}

const Orden *buscarOrden(const QStringList &palabras)
{
    const auto hallada = std::ranges::find_if(Tabla, [&](const Orden *orden) {
        return palabras.first(std::min(palabras.size(), numeroPalabras(*orden))).join(u' ')
            == orden->palabras;
    });
    return hallada == std::end(Tabla) ? nullptr : *hallada;
}
