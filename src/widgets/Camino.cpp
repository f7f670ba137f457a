#include "widgets/Camino.h"

#include <QList>

static void anadir(QPainterPath &p, QChar orden, const QList<double> &n)
{
    switch (orden.unicode()) {
    case u'M':
        return p.moveTo(n[0], n[1]);
    case u'L':
        return p.lineTo(n[0], n[1]);
    case u'C':
        return p.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
    case u'O':
        return p.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
    case u'R':
        return p.addRoundedRect(n[0], n[1], n[2], n[3], n[4], n[4]);
    default:
        return p.closeSubpath();
    }
}

static int cuantos(QChar orden)
{
    switch (orden.unicode()) {
    case u'C':
        return 6;
    case u'R':
        return 5;
    case u'O':
        return 3;
    case u'Z':
        return 0;
    default:
        return 2;
    }
}

QPainterPath camino(QStringView texto)
{
    QPainterPath p;
    const auto piezas = texto.split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < piezas.size();) {
        const QChar orden = piezas[i++].front();
        QList<double> numeros;
        for (int faltan = cuantos(orden); faltan > 0 && i < piezas.size(); --faltan)
            numeros.append(piezas[i++].toDouble());
        Q_ASSERT(numeros.size() == cuantos(orden));
        anadir(p, orden, numeros);
    }
    return p;
}
