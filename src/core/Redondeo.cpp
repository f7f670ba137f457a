#include "core/Redondeo.h"

#include <cmath>

double redondearMitad(double x)
{
    const double entero = std::floor(x);
    return x - entero >= 0.5 ? entero + 1 : entero;
}

double redondear(double valor, int decimales)
{
    static constexpr double potencias[] = {1, 10, 100, 1e3, 1e4, 1e5, 1e6};
    if (decimales < 0 || decimales > 6)
        return valor;
    const double escala = potencias[decimales];
    const double magnitud = redondearMitad(std::abs(valor) * escala) / escala;
    return magnitud == 0 ? 0 : std::copysign(magnitud, valor);
}

float redondearTipo(float tipo)
{
    return static_cast<float>(redondear(static_cast<double>(tipo), 2));
}

double calcularCuota(float tipo, double base)
{
    const qint64 centesimas = std::llround(static_cast<double>(tipo) * 100);
    const qint64 centimos = std::llround(base);
    // base × rate / 10000, split so that nothing exceeds 64 bits
    const qint64 enteras = centimos / 10000 * centesimas;
    const qint64 resto = centimos % 10000 * centesimas;
    const qint64 mitad = resto < 0 ? -5000 : 5000;
    const qint64 cuota = enteras + (resto + mitad) / 10000;
    return static_cast<double>(cuota);
}

bool cabeEnCasilla(double centimos)
{
    return std::abs(centimos) <= ImporteMaximo;
}
