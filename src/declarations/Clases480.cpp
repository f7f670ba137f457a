#include "declarations/Clases480.h"

using namespace Qt::StringLiterals;

static QString numeroCasilla(int clase, int columna)
{
    return QString::number(Reg480::casilla(clase, columna)).rightJustified(2, u'0');
}

static QString sufijo(int clase)
{
    return Clases480.at(static_cast<size_t>(clase)).sufijo.toString();
}

QString propiedadClase(int clase, int columna)
{
    return u'C' + numeroCasilla(clase, columna) + u'_' + sufijo(clase);
}

QString controlClase(int clase, int columna)
{
    return u"txt"_s + numeroCasilla(clase, columna) + sufijo(clase).toLower();
}

UsoCasilla usoCasilla(int numero)
{
    using namespace Casilla480;
    if (numero < 1 || numero > Ultima)
        return UsoCasilla::Desconocida;
    // every third box up to 72 is a row total of the printed form
    if (numero < C70_TOT)
        return numero % 3 == 0 ? UsoCasilla::Calculada : UsoCasilla::Entrada;
    const bool entrada
        = numero == C73_BA1 || numero == C76_BA2 || numero == C79_BA3 || numero == C80_CU3;
    return entrada ? UsoCasilla::Entrada : UsoCasilla::Calculada;
}
