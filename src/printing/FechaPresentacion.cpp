#include "printing/FechaPresentacion.h"

#include "core/Textos.h"
#include "core/cFecha.h"

static FechaPresentacion rechazada(const QString &mensaje)
{
    return {0, msj(Msj::TituloErrorDatosFecha), mensaje};
}

FechaPresentacion comprobarFechaPresentacion(const QString &texto, const cFecha &fechas)
{
    if (!fechas.EsFecha(texto))
        return rechazada(msj(Msj::ErrorFechaPresentacion));
    const qint32 fecha = fechas.StringToLong(texto);
    if (fecha < PrimeraFechaPresentacion)
        return rechazada(
            msj(Msj::ErrorFechaAnterior, fechas.LongToString(PrimeraFechaPresentacion)));
    return {fecha, {}, {}};
}
