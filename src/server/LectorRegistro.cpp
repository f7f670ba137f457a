#include "server/LectorRegistro.h"

#include <cmath>
#include <stdexcept>

namespace servidor {

namespace {

constexpr double TipoMaximo = 99'999.0;
constexpr double RuidoSimple = 0.01; // what single precision may add to a rate's hundredths

bool esNumero(const QVariant &valor)
{
    switch (valor.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

LectorRegistro::LectorRegistro(const Registro &registro, qsizetype longitud)
    : m_registro(registro)
    , m_valido(registro.size() == longitud)
{
}

void LectorRegistro::exigirValido() const
{
    if (!m_valido)
        throw std::invalid_argument("malformed record");
}

double LectorRegistro::rechazar()
{
    m_valido = false;
    return 0;
}

double LectorRegistro::numero(qsizetype campo)
{
    const QVariant valor = m_registro.value(campo);
    if (!esNumero(valor))
        return rechazar();
    const double leido = valor.toDouble();
    return std::abs(leido) <= ImporteMaximo ? leido : rechazar(); // false for a NaN too
}

qint64 LectorRegistro::importe(qsizetype campo)
{
    const double leido = numero(campo);
    return static_cast<qint64>(std::trunc(leido) == leido ? leido : rechazar());
}

qint32 LectorRegistro::entero(qsizetype campo, qint32 minimo, qint32 maximo)
{
    const qint64 leido = importe(campo);
    return static_cast<qint32>(
        leido >= minimo && leido <= maximo ? leido : static_cast<qint64>(rechazar()));
}

qint64 LectorRegistro::tipo(qsizetype campo)
{
    const double centesimas = numero(campo) * 100;
    const double redondo = std::round(centesimas);
    const bool bien
        = std::abs(centesimas - redondo) < RuidoSimple && std::abs(redondo) <= TipoMaximo;
    return static_cast<qint64>(bien ? redondo : rechazar());
}

QString LectorRegistro::texto(qsizetype campo)
{
    const QVariant valor = m_registro.value(campo);
    if (valor.typeId() != QMetaType::QString)
        rechazar();
    return normalizado(valor.toString());
}

qint32 LectorRegistro::codigo(qsizetype campo, qint32 maximo)
{
    if (m_registro.value(campo).typeId() != QMetaType::QString)
        return entero(campo, 0, maximo);
    const QString leido = texto(campo);
    bool bien = true;
    const qint32 codigo = leido.isEmpty() ? 0 : leido.toInt(&bien);
    return bien && codigo >= 0 && codigo <= maximo ? codigo : static_cast<qint32>(rechazar());
}

QString normalizado(const QString &texto)
{
    return texto.trimmed().toUpper();
}

} // namespace servidor
