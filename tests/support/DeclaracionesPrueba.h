#pragma once

#include "core/Servicios.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "printing/cImOf.h"
#include "support/Entorno.h"

using namespace Qt::StringLiterals;

/// Figures of a return, all different: nine of a 430; of a 480, element i holds (i + 1) × 1,001.01
/// and the rates are 7.15 and 6.
inline Registro figurasDistintas(const QString &modelo)
{
    if (modelo == u"430")
        return {u"X"_s, 111111.0, 7.15F, 222222.0, -333333.0, -4444.0, 555555.0, 6.0F, 666666.0};
    Registro datos;
    for (int i = 0; i < Reg480::Total; ++i)
        datos += (i + 1) * 100101.0;
    datos[Reg480::C74_TI1] = 7.15F;
    datos[Reg480::C77_TI2] = 6.0F;
    return datos;
}

/// Stores those figures as a return of 2026, of January or of the year; its key.
inline qint32 guardarDistinta(qint32 csco, const QString &modelo)
{
    if (modelo == u"430")
        return servicioDeclaracion()->Guardar430(Registro{0, csco, 2026, 1, 1, modelo, 1}
                                                 + figurasDistintas(modelo));
    return servicioDeclaracion()->Guardar480(Registro{0, csco, 2026, 2, 12, modelo, 2}
                                             + figurasDistintas(modelo));
}

/// The returns stored for a declarant, as the summary lists them.
inline Filas declaracionesDe(qint32 csco)
{
    Filas filas;
    servicioDeclaracion()->dameResultado(filas, csco);
    return filas;
}

/// Makes a return of 2026 of the declarant the one that the summary has chosen.
inline void tomarCabecera(qint32 csco, const QString &modelo, quint8 periodo,
                          const QString &dni = u"12345678Z"_s,
                          const QString &nombre = u"SEGUROS UNO"_s)
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.TomarDeclarante(csco, dni, nombre);
    cabecera.EJERCICIO(2026);
    cabecera.CambiarModelo(modelo);
    cabecera.PERIODO(periodo);
}

/// Stores a declarant and a return, every field different, and makes it the print request, as the
/// summary does; the return's key.
inline qint32 pedirImpresion(const QString &modelo)
{
    const QString dni = u"A58818501"_s;
    servicioDeclarante()->GuardarDeclarante(
        {0, dni, u"ASEGURADORA UNO, S.A."_s, u"AV"_s, u"DEL PUERTO"_s, 123, u"B"_s, u"E"_s, u"4"_s,
         u"DCH"_s, u"20"_s, u"20001"_s, u"001"_s, u"OTRO NOMBRE"_s, u"943111222"_s, 0, 0});
    const qint32 csco = servicioDeclarante()->ObtenerCodigoDeclarante(dni);
    const qint32 csde = guardarDistinta(csco, modelo);
    tomarCabecera(csco, modelo, modelo == u"480" ? 12 : 1, dni, u"ASEGURADORA UNO, S.A."_s);
    auto &p = unico::la<cImOf>();
    p.CSCO(csco);
    p.CSDE(csde);
    p.MODELO(modelo);
    p.FECHAPRE(20260131);
    p.PedirOficial();
    return csde;
}
