#include "server/ValidacionDeclaracion.h"

#include "server/LectorRegistro.h"
#include "server/Modelo.h"

#include <utility>

namespace servidor {

namespace {

constexpr qint32 Anio = 32'767;
constexpr qint32 Periodo = 255;

using Par = std::pair<qint32, qint32>;

} // namespace

bool dentroDeLimites(const Registro &cabecera)
{
    using namespace RegCabecera;
    LectorRegistro lector(cabecera.first(std::min<qsizetype>(cabecera.size(), TotalPeriodo)),
                          TotalPeriodo);
    const auto par = [&](qsizetype ejercicio, qsizetype periodo) {
        return Par(lector.entero(ejercicio, 0, Anio), lector.entero(periodo, 0, Periodo));
    };
    const Par pedido = par(EJERCICIO, PERIODO);
    const Par minimo = par(EJERMIN, PERMIN);
    const Par maximo = par(EJERMAX, PERMAX);
    lector.exigirValido();
    return pedido.second >= 1 && pedido.second <= UltimoMes && minimo <= pedido && pedido <= maximo;
}

qint16 reglaCabecera(const Registro &cabecera)
{
    using namespace RegCabecera;
    LectorRegistro lector(cabecera, Total);
    const qint32 ejercicio = lector.entero(EJERCICIO, 0, Anio);
    const qint32 periodo = lector.entero(PERIODO, 0, Periodo);
    const QString modelo = lector.texto(MODELO);
    lector.entero(CSCO, 0, std::numeric_limits<qint32>::max());
    lector.exigirValido();
    if (ejercicio == 0)
        return 1;
    if (periodo == 0)
        return 2;
    if (!modeloDe(modelo))
        return 3;
    return dentroDeLimites(cabecera) ? 0 : 4;
}

qint16 reglaDatos430(const Registro &datos)
{
    using namespace RegValidar430;
    LectorRegistro lector(datos, Total);
    const bool rectifica = !lector.texto(RECTIFICA).isEmpty();
    const qint64 base = lector.importe(BASEREC);
    const qint64 cuota = lector.importe(CUOTAREC);
    lector.exigirValido();
    if (!rectifica)
        return 0;
    return base == 0 ? 1 : cuota == 0 ? 2 : 0;
}

qint16 reglaDatos480(const Registro &datos)
{
    using namespace RegValidar480;
    LectorRegistro lector(datos, Total);
    const qint64 total = lector.importe(C70_TOT);
    const qint64 bandas = lector.importe(C73_BA1) + lector.importe(C76_BA2);
    lector.exigirValido();
    return total == bandas ? 0 : 2;
}

} // namespace servidor
