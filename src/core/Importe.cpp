#include "core/Importe.h"

#include "core/Caracteres.h"
#include "core/Textos.h"

#include <QList>

#include <algorithm>
#include <cmath>

static constexpr int CifrasEnteras = 13;
static constexpr int Decimales = 2;

/// Digits in groups of three ("1.234.567"), without a leading zero.
static bool sonGrupos(QStringView texto)
{
    const auto grupos = texto.split(u'.');
    if (grupos.front().isEmpty() || grupos.front().size() > 3 || grupos.front().startsWith(u'0'))
        return false;
    if (!sonCifras(grupos.front()))
        return false;
    return std::all_of(grupos.begin() + 1, grupos.end(),
                       [](QStringView g) { return g.size() == 3 && sonCifras(g); });
}

/// Splits at the decimal point; false when the text cannot be told apart.
static bool separar(QStringView texto, QStringView &enteros, QStringView &decimales)
{
    auto corte = texto.indexOf(u',');
    if (corte < 0 && !sonGrupos(texto) && texto.count(u'.') == 1)
        corte = texto.indexOf(u'.');
    enteros = corte < 0 ? texto : texto.left(corte);
    decimales = corte < 0 ? QStringView() : texto.mid(corte + 1);
    return (!enteros.isEmpty() || !decimales.isEmpty()) && sonCifras(decimales)
        && (sonCifras(enteros) || sonGrupos(enteros));
}

ImporteLeido leerImporte(QStringView texto)
{
    texto = texto.trimmed();
    if (texto.isEmpty())
        return {};
    const bool negativo = texto.startsWith(u'-');
    QStringView enteros;
    QStringView decimales;
    if (!separar(negativo ? texto.mid(1) : texto, enteros, decimales))
        return {0, ImporteLeido::Ilegible};
    // "0.123" is neither thousands nor cents
    if (decimales.size() > Decimales)
        return {0, ImporteLeido::DemasiadosDecimales};

    QString cifras = enteros.toString().remove(u'.');
    while (cifras.startsWith(u'0'))
        cifras.remove(0, 1);
    if (cifras.size() > CifrasEnteras)
        return {0, ImporteLeido::DemasiadasCifras};
    cifras += decimales.toString().leftJustified(Decimales, u'0');
    const auto centimos = static_cast<double>(cifras.toLongLong());
    return {negativo && centimos != 0 ? -centimos : centimos, ImporteLeido::Ninguno};
}

QString ImporteLeido::motivo(const QString &texto) const
{
    switch (fallo) {
    case DemasiadasCifras:
        return msj(Msj::ImporteDemasiadasCifras);
    case DemasiadosDecimales:
        return msj(Msj::ImporteDemasiadosDecimales);
    case Ilegible:
        return msj(Msj::ImporteIlegible, texto);
    case Ninguno:
        break;
    }
    return {};
}

QString textoImporte(double centimos)
{
    const auto total = std::llround(centimos);
    const auto magnitud = std::llabs(total);
    QString texto = QString::number(magnitud / 100);
    for (auto lugar = texto.size() - 3; lugar > 0; lugar -= 3)
        texto.insert(lugar, u'.');
    texto += u',' + QString::number(magnitud % 100).rightJustified(2, u'0');
    return total < 0 ? u'-' + texto : texto;
}

QString textoCasilla(double centimos)
{
    return centimos == 0 ? QString() : textoImporte(centimos);
}

QString textoTipo(float tipo)
{
    return textoImporte(static_cast<double>(std::lround(tipo * 100)));
}

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
