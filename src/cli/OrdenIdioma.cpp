#include "cli/Orden.h"
#include "core/CEntrada.h"
#include "core/Modos.h"
#include "core/Textos.h"
#include "core/Unico.h"

using namespace Qt::StringLiterals;

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
    const QString nombre
        = msj(euskera ? Msj::EleccionIdiomaEuskera : Msj::EleccionIdiomaCastellano);
    return hecho(msj(Msj::CliIdioma, u"%1 (%2)"_s.arg(actual, nombre)));
}

extern constinit const Orden OrdenIdioma = {
    u"idioma", Msj::AyudaIdioma, u"[C|E]", {}, Msj::NoSePudoGuardar, idioma,
};
