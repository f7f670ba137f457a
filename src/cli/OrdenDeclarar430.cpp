#include "cli/Declaracion.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos430.h"

using namespace Qt::StringLiterals;

/// The option of each box and the total that it goes into.
struct Casilla430
{
    QStringView opcion;
    void (cDatos430::*escribir)(double);
    Msj total;
};

static constexpr QStringView BaseRectificacion = u"base-rectificacion";
static constexpr QStringView CuotaRectificacion = u"cuota-rectificacion";
static constexpr Casilla430 Casillas[] = {
    {u"base", &cDatos430::BASELIQ, Msj::BaseImponible},
    {BaseRectificacion, &cDatos430::BASEREC, Msj::BaseImponible},
    {CuotaRectificacion, &cDatos430::CUOTAREC, Msj::Cuota},
};

/// Takes one amount into the record: empty, or why not.
static QString tomar(const Casilla430 &casilla, const QString &texto)
{
    const ImporteDado importe = importeDado(texto);
    if (!importe.motivo.isEmpty())
        return importe.motivo;
    const bool cabe = cambiarSiCabe(unico::la<cDatos430>(), [&](cDatos430 &registro) {
        (registro.*casilla.escribir)(importe.centimos);
    });
    return cabe ? QString() : msj(Msj::ImporteTotalExcedido, msj(casilla.total));
}

static Resultado declarar430(const Argumentos &argumentos)
{
    if (auto fallo = prepararCabecera(argumentos, Modelo430, argumentos.valor(u"periodo")))
        return *fallo;

    auto &registro = unico::la<cDatos430>();
    registro.MODO(Modo::Alta);
    registro.MarcarRectificacion(argumentos.tiene(BaseRectificacion)
                                 || argumentos.tiene(CuotaRectificacion));
    for (const Casilla430 &casilla : Casillas) {
        if (!argumentos.tiene(casilla.opcion))
            continue;
        const QString motivo = tomar(casilla, argumentos.valor(casilla.opcion));
        if (!motivo.isEmpty())
            return rechazado(msj(Msj::CliOpcionMal, conGuiones(casilla.opcion), motivo));
    }
    if (registro.ValidarDatos430(registro.RegistroValidar()) != 0)
        return rechazado(msj(Msj::ErrorRectificacion430));
    return resultadoGuardar(registro.GuardarDeclaracion(registro.RegistroGuardar()),
                            registro.CUOTATOT());
}

static constexpr Opcion Opciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"periodo", u"MM", Msj::AyudaPeriodo, Opcion::Obligatoria},
    {u"base", u"EUROS", Msj::AyudaBase, Opcion::Obligatoria},
    {BaseRectificacion, u"EUROS", Msj::AyudaBaseRectificacion},
    {CuotaRectificacion, u"EUROS", Msj::AyudaCuotaRectificacion},
};

extern constinit const Orden OrdenDeclarar430 = {
    u"declarar 430", Msj::AyudaDeclarar430, {}, Opciones, Msj::NoSePudoGuardar, declarar430,
};
