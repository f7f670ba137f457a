#include "cli/Declaracion.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos480.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

/// Takes "NN=IMPORTE" into the record: null, or what to answer.
static std::optional<Resultado> tomar(const QString &texto, QSet<int> &dadas)
{
    static const QRegularExpression forma(u"^([0-9]{1,3})=(.*)$"_s);
    const auto partes = forma.match(texto);
    if (!partes.hasMatch())
        return malUso(msj(Msj::CliValorNoValido, conGuiones(u"casilla"), texto));

    const int numero = partes.captured(1).toInt();
    const QString nombre = QString::number(numero).rightJustified(2, u'0');
    const auto casilla = casillaEntrada(numero);
    if (!casilla)
        return rechazado(msj(numero < 1 || numero > UltimaCasilla480 ? Msj::CliCasillaDesconocida
                                                                     : Msj::CliCasillaCalculada,
                             nombre));
    if (dadas.contains(numero))
        return rechazado(msj(Msj::CliCasillaRepetida, nombre));
    dadas.insert(numero);

    const ImporteDado importe = importeDado(partes.captured(2));
    if (!importe.motivo.isEmpty())
        return rechazado(msj(Msj::CliCasillaMal, nombre, importe.motivo));
    if (!cambiarSiCabe(unico::la<cDatos480>(),
                       [&](cDatos480 &registro) { registro.casilla(*casilla, importe.centimos); }))
        return rechazado(
            msj(Msj::CliCasillaMal, nombre, msj(Msj::ImporteTotalExcedido, msj(Msj::Totales))));
    return {};
}

static Resultado declarar480(const Argumentos &argumentos)
{
    if (auto fallo = prepararCabecera(argumentos, Modelo480, QString::number(PeriodoAnual)))
        return *fallo;

    auto &registro = unico::la<cDatos480>();
    registro.MODO(Modo::Alta);
    QSet<int> dadas;
    for (const QString &texto : argumentos.valores(u"casilla"))
        if (auto fallo = tomar(texto, dadas))
            return *fallo;
    registro.CalcularValores();
    if (registro.ValidarDatos480(registro.RegistroValidar()) != 0)
        return rechazado(msj(Msj::ErrorTotal480));
    return resultadoGuardar(registro.GuardarDeclaracion(registro.RegistroGuardar()),
                            registro.casilla(Casilla480::C81_RES));
}

static constexpr Opcion Opciones[] = {
    {u"dni", u"DNI", Msj::AyudaDni, Opcion::Obligatoria},
    {u"ejercicio", u"AAAA", Msj::AyudaEjercicio, Opcion::Obligatoria},
    {u"casilla", u"NN=EUROS", Msj::AyudaCasilla, Opcion::Repetible},
};

extern constinit const Orden OrdenDeclarar480 = {
    u"declarar 480", Msj::AyudaDeclarar480, {}, Opciones, Msj::NoSePudoGuardar, declarar480,
};
