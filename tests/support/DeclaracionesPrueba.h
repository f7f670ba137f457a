#pragma once

#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"
#include "support/Entorno.h"

using namespace Qt::StringLiterals;

/// Stores a declarant with one return and makes it the print request, as the summary does.
inline qint32 pedirImpresion(const QString &modelo, const QString &dni = u"A58818501"_s)
{
    const qint32 csco = Entorno::altaDeclarante(dni);
    const qint32 csde = Entorno::altaDeclaracion(csco, 2026, modelo == u"480" ? 12 : 1, modelo);
    if (modelo == u"430") {
        cDatos430 r;
        r.MODO(u"A"_s);
        r.CSDE(csde);
        r.BASELIQ(123456);
        r.MarcarRectificacion(true);
        r.BASEREC(100000);
        r.CUOTAREC(8000);
        r.CalcularValores();
        r.GuardarDeclaracion(r.RegistroGuardar());
    } else {
        cDatos480 r;
        r.MODO(u"A"_s);
        r.CSDE(csde);
        r.casilla(1, 1000000);
        r.casilla(2, 234567);
        r.casilla(Casilla480::C73_BA1, 1000000);
        r.CalcularValores();
        r.GuardarDeclaracion(r.RegistroGuardar());
    }
    auto &p = unico::la<cImOf>();
    p.CSCO(csco);
    p.CSDE(csde);
    p.MODELO(modelo);
    p.FECHAPRE(20260131);
    p.PedirOficial();
    return csde;
}
