#pragma once

#include "core/Importe.h"
#include "core/Redondeo.h"
#include "printing/Impreso430.h"
#include "printing/Impreso480.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using namespace impreso;

/// Returns to print that try the forms to the limit.
namespace valoresPrueba {

inline ValoresImpreso vacio()
{
    ValoresImpreso v;
    for (int i = 1; i < 82; ++i)
        v.casilla(i) = u"0,00"_s;
    v.textos[Valor::Importe] = u"0,00"_s;
    return v;
}

inline ValoresImpreso lleno()
{
    const auto largo = [](int n) { return QString(n, u'W'); };
    ValoresImpreso v;
    v.haciendaEuskera = u"Ogasun eta Finantza Departamentua"_s;
    v.haciendaCastellano = u"Departamento de Hacienda y Finanzas"_s;
    v.textos = {
        {Valor::Nif, u"W5881850W"_s},
        {Valor::Nombre, largo(40)},
        {Valor::Telefono, u"943123456"_s},
        {Valor::Domicilio, u"CL "_s + largo(30)},
        {Valor::Numero, u"99999 WW"_s},
        {Valor::Piso, u"ESC. WW WW WWW"_s},
        {Valor::Municipio, largo(25)},
        {Valor::CodigoPostal, u"38001"_s},
        {Valor::Provincia, largo(20)},
        {Valor::Ejercicio, u"2026"_s},
        {Valor::Periodo, u"IRAILA / SEPTIEMBRE"_s},
        {Valor::Fecha, u"31/12/2026"_s},
        {Valor::Importe, textoImporte(-ImporteMaximo)},
    };
    for (int i = 1; i < 82; ++i)
        v.casilla(i) = textoImporte(i % 2 == 0 ? ImporteMaximo : -ImporteMaximo);
    v.casilla(74) = v.casilla(77) = u"100,00"_s;
    return v;
}

/// The values as each form expects them.
inline ValoresImpreso para(const QString &modelo, ValoresImpreso v)
{
    if (modelo == u"430")
        v.casilla(2) = u"100,00"_s;
    else if (!v.texto(Valor::Periodo).isEmpty())
        v.textos[Valor::Periodo] = u"URTEKOA / ANUAL"_s;
    return v;
}

inline void dibujar(QPainter &pintor, const QString &modelo, const ValoresImpreso &v,
                    const QString &copia)
{
    (modelo == u"430" ? dibujar430 : dibujar480)(pintor, para(modelo, v), copia);
}

} // namespace valoresPrueba
