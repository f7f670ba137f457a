#include "cli/Linea.h"
#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecResumen.h"
#include "declarations/EntradaTexto.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// Makes the header of a new return of --dni and --ejercicio and checks it.
static Rechazo prepararCabecera(const Argumentos &argumentos, const QString &modelo, int periodo)
{
    const int ejercicio = numeroDado(argumentos, u"ejercicio", UltimoEjercicio);
    if (ejercicio == 0)
        return valorMalo(u"ejercicio", argumentos.valor(u"ejercicio"));
    if (auto rechazo = tomarDeclarante(argumentos.valor(u"dni")))
        return rechazo;

    auto &cabecera = unico::la<cDecResumen>();
    cabecera.EJERCICIO(static_cast<qint16>(ejercicio));
    cabecera.CambiarModelo(modelo);
    cabecera.PERIODO(static_cast<quint8>(periodo));
    const qint16 codigo = cabecera.ValidarDatosComunes(cabecera.Cabecera());
    if (codigo != 0)
        return rechazado(textoCabecera(codigo));
    return {};
}

/// What was saved; `clave` is what the service answered, below 1 for a refusal.
static Resultado resultadoGuardar(qint32 clave, double total)
{
    if (clave < 1)
        return rechazado(msj(Msj::CliNoGuardada));
    const auto &cabecera = unico::la<cDecResumen>();
    return hecho(
        msj(Msj::CliDeclaracionGuardada, cabecera.MODELO(), QString::number(cabecera.EJERCICIO()),
            textoPeriodo(cabecera.PERIODICIDAD(), cabecera.PERIODO()), textoImporte(total)));
}

static constexpr QStringView BaseRectificacion = u"base-rectificacion";
static constexpr QStringView CuotaRectificacion = u"cuota-rectificacion";
static constexpr std::pair<QStringView, Dato430> Datos[] = {
    {u"base", Dato430::Base},
    {BaseRectificacion, Dato430::BaseRectificacion},
    {CuotaRectificacion, Dato430::CuotaRectificacion},
};

static Resultado declarar430(const Argumentos &argumentos)
{
    const int mes = numeroDado(argumentos, u"periodo", UltimoMes);
    if (mes == 0)
        return valorMalo(u"periodo", argumentos.valor(u"periodo"));
    if (auto fallo = prepararCabecera(argumentos, Modelo430, mes))
        return *fallo;

    auto &registro = unico::la<cDatos430>();
    registro.MODO(Modo::Alta);
    registro.MarcarRectificacion(argumentos.tiene(BaseRectificacion)
                                 || argumentos.tiene(CuotaRectificacion));
    for (const auto &[opcion, dato] : Datos) {
        if (!argumentos.tiene(opcion))
            continue;
        const QString motivo = tomarDato(dato, argumentos.valor(opcion));
        if (!motivo.isEmpty())
            return rechazado(msj(Msj::CliOpcionMal, conGuiones(opcion), motivo));
    }
    if (registro.ValidarDatos430(registro.RegistroValidar()) != 0)
        return rechazado(msj(Msj::ErrorRectificacion430));
    return resultadoGuardar(registro.GuardarDeclaracion(registro.RegistroGuardar()),
                            registro.CUOTATOT());
}

static constexpr Opcion Opciones430[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"periodo", u"MM", Msj::AyudaPeriodo, Opcion::Obligatoria},
    {u"base", u"EUROS", Msj::AyudaBase, Opcion::Obligatoria},
    {BaseRectificacion, u"EUROS", Msj::AyudaBaseRectificacion},
    {CuotaRectificacion, u"EUROS", Msj::AyudaCuotaRectificacion},
};

extern constinit const Orden OrdenDeclarar430 = {
    u"declarar 430", Msj::AyudaDeclarar430, {}, Opciones430, Msj::NoSePudoGuardar, declarar430,
};

/// Reads "NN=IMPORTE".
static Rechazo leerCasilla(const QString &texto, Casillas480 &dadas)
{
    static const QRegularExpression forma(u"^([0-9]{1,3})=(.*)$"_s);
    const auto partes = forma.match(texto);
    if (!partes.hasMatch())
        return valorMalo(u"casilla", texto);

    const int numero = partes.captured(1).toInt();
    const QString nombre = nombreCasilla(numero);
    if (!casillaEntrada(numero))
        return rechazado(msj(numero < 1 || numero > UltimaCasilla480 ? Msj::CliCasillaDesconocida
                                                                     : Msj::CliCasillaCalculada,
                             nombre));
    if (dadas.contains(numero))
        return rechazado(msj(Msj::CliCasillaRepetida, nombre));
    const ImporteDado importe = importeDado(partes.captured(2));
    if (!importe.motivo.isEmpty())
        return rechazado(msj(Msj::CliCasillaMal, nombre, importe.motivo));
    dadas.insert(numero, importe.centimos);
    return {};
}

static Resultado declarar480(const Argumentos &argumentos)
{
    if (auto fallo = prepararCabecera(argumentos, Modelo480, PeriodoAnual))
        return *fallo;

    auto &registro = unico::la<cDatos480>();
    registro.MODO(Modo::Alta);
    Casillas480 dadas;
    for (const QString &texto : argumentos.valores(u"casilla"))
        if (auto fallo = leerCasilla(texto, dadas))
            return *fallo;
    if (const int numero = tomarCasillas(dadas); numero != 0)
        return rechazado(msj(Msj::CliCasillaMal, nombreCasilla(numero),
                             msj(Msj::ImporteTotalExcedido, msj(Msj::Totales))));
    if (registro.ValidarDatos480(registro.RegistroValidar()) != 0)
        return rechazado(msj(Msj::ErrorTotal480));
    return resultadoGuardar(registro.GuardarDeclaracion(registro.RegistroGuardar()),
                            registro.casilla(Casilla480::C81_RES));
}

static constexpr Opcion Opciones480[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"casilla", u"NN=EUROS", Msj::AyudaCasilla, Opcion::Repetible},
};

extern constinit const Orden OrdenDeclarar480 = {
    u"declarar 480", Msj::AyudaDeclarar480, {}, Opciones480, Msj::NoSePudoGuardar, declarar480,
};
