#include "cli/Valores.h"

#include "core/FiltroTeclas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"

Resultado valorMalo(QStringView opcion, const QString &valor)
{
    return malUso(msj(Msj::CliValorNoValido, conGuiones(opcion), valor));
}

int numeroDado(const Argumentos &argumentos, QStringView opcion, int maximo)
{
    const QString texto = argumentos.valor(opcion);
    const int valor = sonCifras(texto) ? texto.toInt() : 0;
    return valor <= maximo ? valor : 0;
}

Rechazo tomarDeclarante(const QString &dni)
{
    auto &declarante = unico::la<cDecDatos>();
    const qint32 csco = declarante.ObtenerCodigoDeclarante(dni.trimmed().toUpper());
    if (csco == 0)
        return rechazado(msj(Msj::CliDeclaranteNoExiste, dni));
    declarante.MODO(Modo::Consulta);
    declarante.CSCO(csco);
    declarante.CargarDeclarante(csco);
    unico::la<cDecResumen>().TomarDeclarante(csco, declarante.DNI(), declarante.NOMBRE());
    return {};
}
