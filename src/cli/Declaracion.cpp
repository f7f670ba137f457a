#include "cli/Declaracion.h"

#include "cli/Declarante.h"
#include "core/FiltroTeclas.h"
#include "core/Importe.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecResumen.h"

ImporteDado importeDado(const QString &texto)
{
    if (texto.trimmed().isEmpty())
        return {0, msj(Msj::ImporteIlegible, texto)};
    const ImporteLeido leido = leerImporte(texto);
    return {leido.centimos, leido.motivo(texto)};
}

/// A whole number from 1 to `maximo`, digits only; 0 when it is something else.
static int numero(const QString &texto, int maximo)
{
    const int valor = sonCifras(texto) ? texto.toInt() : 0;
    return valor <= maximo ? valor : 0;
}

static Resultado valorMalo(QStringView opcion, const QString &valor)
{
    return malUso(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
}

std::optional<Resultado> prepararCabecera(const Argumentos &argumentos, const QString &modelo,
                                          const QString &periodo)
{
    const QString anno = argumentos.valor(u"ejercicio");
    const int ejercicio = numero(anno, 9999);
    const int mes = numero(periodo, 12);
    if (ejercicio == 0)
        return valorMalo(u"ejercicio", anno);
    if (mes == 0)
        return valorMalo(u"periodo", periodo);
    if (const QString motivo = tomarDeclarante(argumentos.valor(u"dni")); !motivo.isEmpty())
        return rechazado(motivo);

    auto &cabecera = unico::la<cDecResumen>();
    cabecera.EJERCICIO(static_cast<qint16>(ejercicio));
    cabecera.CambiarModelo(modelo);
    cabecera.PERIODO(static_cast<quint8>(mes));
    const qint16 codigo = cabecera.ValidarDatosComunes(cabecera.Cabecera());
    if (codigo != 0)
        return rechazado(textoCabecera(codigo));
    return {};
}

Resultado resultadoGuardar(qint32 clave, double total)
{
    if (clave < 1)
        return rechazado(msj(Msj::CliNoGuardada));
    const auto &cabecera = unico::la<cDecResumen>();
    return hecho(
        msj(Msj::CliDeclaracionGuardada, cabecera.MODELO(), QString::number(cabecera.EJERCICIO()),
            textoPeriodo(cabecera.PERIODICIDAD(), cabecera.PERIODO()), textoImporte(total)));
}
