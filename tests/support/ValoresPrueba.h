#pragma once

#include "core/Importe.h"
#include "core/Redondeo.h"
#include "printing/Impreso430.h"
#include "printing/Impreso480.h"

#include <QStringList>

/// Returns to print that try the forms to the limit.
namespace valoresPrueba {

inline ValoresImpreso vacio()
{
    ValoresImpreso v;
    for (int i = 1; i < 82; ++i)
        v.casilla(i) = QStringLiteral("0,00");
    v.textos[Valor::Importe] = QStringLiteral("0,00");
    return v;
}

inline ValoresImpreso lleno()
{
    const auto largo = [](int n) { return QString(n, u'W'); };
    ValoresImpreso v;
    v.haciendaEuskera = QStringLiteral("Ogasun eta Finantza Departamentua");
    v.haciendaCastellano = QStringLiteral("Departamento de Hacienda y Finanzas");
    v.textos = {
        {Valor::Nif, QStringLiteral("W5881850W")},
        {Valor::Nombre, largo(40)},
        {Valor::Telefono, QStringLiteral("943123456")},
        {Valor::Domicilio, QStringLiteral("CL ") + largo(30)},
        {Valor::Numero, QStringLiteral("99999 WW")},
        {Valor::Piso, QStringLiteral("ESC. WW WW WWW")},
        {Valor::Municipio, largo(25)},
        {Valor::CodigoPostal, QStringLiteral("38001")},
        {Valor::Provincia, largo(20)},
        {Valor::Ejercicio, QStringLiteral("2026")},
        {Valor::Periodo, QStringLiteral("IRAILA / SEPTIEMBRE")},
        {Valor::Fecha, QStringLiteral("31/12/2026")},
        {Valor::Importe, textoImporte(-ImporteMaximo)},
    };
    for (int i = 1; i < 82; ++i)
        v.casilla(i) = textoImporte(i % 2 == 0 ? ImporteMaximo : -ImporteMaximo);
    v.casilla(74) = v.casilla(77) = QStringLiteral("100,00");
    return v;
}

/// The values as each form expects them.
inline ValoresImpreso para(const QString &modelo, ValoresImpreso v)
{
    if (modelo == u"430")
        v.casilla(2) = QStringLiteral("100,00");
    else if (!v.texto(Valor::Periodo).isEmpty())
        v.textos[Valor::Periodo] = QStringLiteral("URTEKOA / ANUAL");
    return v;
}

inline void dibujar(QPainter &pintor, const QString &modelo, const ValoresImpreso &v,
                    const QString &copia)
{
    (modelo == u"430" ? dibujar430 : dibujar480)(pintor, para(modelo, v), copia);
}

} // namespace valoresPrueba
