#include "cli/Linea.h"
#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"

#include <QMap>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// An amount given on the command line, in cents, or why it is refused. An empty one is refused
/// too: it is a slip of whoever wrote the command.
struct ImporteDado
{
    double centimos = 0;
    QString motivo;
};

static ImporteDado importeDado(const QString &texto)
{
    if (texto.trimmed().isEmpty())
        return {0, msj(Msj::ImporteIlegible, texto)};
    const ImporteLeido leido = leerImporte(texto);
    return {leido.centimos, leido.motivo(texto)};
}

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
    const int mes = numeroDado(argumentos, u"periodo", UltimoMes);
    if (mes == 0)
        return valorMalo(u"periodo", argumentos.valor(u"periodo"));
    if (auto fallo = prepararCabecera(argumentos, Modelo430, mes))
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

/// The boxes given, by their numbers: the order in which they were given does not matter.
using Casillas480 = QMap<int, double>;

static QString nombreCasilla(int numero)
{
    return QString::number(numero).rightJustified(2, u'0');
}

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

static bool caben(const Casillas480 &dadas)
{
    return cambiarSiCabe(unico::la<cDatos480>(), [&](cDatos480 &registro) {
        for (const auto &[numero, centimos] : dadas.asKeyValueRange())
            registro.casilla(*casillaEntrada(numero), centimos);
    });
}

/// The box, in the order of their numbers, with which the totals pass what fits.
static int primeraQueNoCabe(Casillas480 dadas)
{
    int numero = 0;
    do {
        numero = dadas.lastKey();
        dadas.remove(numero);
    } while (!dadas.isEmpty() && !caben(dadas));
    return numero;
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
    if (!caben(dadas))
        return rechazado(msj(Msj::CliCasillaMal, nombreCasilla(primeraQueNoCabe(dadas)),
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
