#pragma once

#include "core/Importe.h"
#include "printing/Impreso.h"
#include "support/GrabadorDibujo.h"

#include <QFile>
#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace impreso;

/// Returns to print that try the forms to the limit.
namespace valoresPrueba {

/// Every value as long as it can be, and no two alike.
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
        v.casilla(i) = textoImporte(i - ImporteMaximo);
    v.casilla(74) = u"100,00"_s;
    v.casilla(77) = u"100,01"_s;
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

/// A page's texts in drawing order, one a line: left, right and middle in millimetres, text.
inline void guardarTextos(const QString &ruta, const QList<GrabadorDibujo::Texto> &textos)
{
    QFile fichero(ruta);
    QVERIFY(fichero.open(QIODevice::WriteOnly));
    for (const auto &t : textos)
        fichero.write(u"%1 %2 %3 %4\n"_s.arg(t.caja.left(), 0, 'f', 1)
                          .arg(t.caja.right(), 0, 'f', 1)
                          .arg(t.caja.center().y(), 0, 'f', 1)
                          .arg(t.texto)
                          .toUtf8());
}

inline QList<GrabadorDibujo::Texto> leerTextos(const QString &ruta)
{
    QFile fichero(ruta);
    QList<GrabadorDibujo::Texto> textos;
    if (!fichero.open(QIODevice::ReadOnly))
        return textos;
    for (const QString &linea : QString::fromUtf8(fichero.readAll()).split(u'\n')) {
        if (linea.isEmpty())
            continue;
        const double izquierda = linea.section(u' ', 0, 0).toDouble();
        const double derecha = linea.section(u' ', 1, 1).toDouble();
        const double medio = linea.section(u' ', 2, 2).toDouble();
        textos += {linea.section(u' ', 3), QRectF(izquierda, medio, derecha - izquierda, 0), {}};
    }
    return textos;
}

} // namespace valoresPrueba
