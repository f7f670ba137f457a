#include "declarations/Clases480.h"

#include <QMetaEnum>

using namespace Qt::StringLiterals;

/// "C01_VIDA"; null when no amount box has the number.
static const char *nombre(int numero)
{
    return QMetaEnum::fromType<Casilla480>().valueToKey(numero);
}

QString numeroCasilla(Casilla480 casilla)
{
    return QString::number(static_cast<int>(casilla)).rightJustified(2, u'0');
}

QString controlCasilla(Casilla480 casilla)
{
    const QString propiedad = QString::fromLatin1(nombre(static_cast<int>(casilla)));
    return u"txt"_s + propiedad.mid(1).remove(u'_').toLower();
}

std::optional<Casilla480> casillaEntrada(int numero)
{
    const auto casilla = static_cast<Casilla480>(numero);
    return nombre(numero) && seRellena(casilla) ? std::optional(casilla) : std::nullopt;
}
