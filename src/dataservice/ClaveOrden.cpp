#include "dataservice/ClaveOrden.h"

#include <algorithm>

namespace {

constexpr QChar TildeDeLaEne(0x0303);
constexpr QChar DetrasDeTodaLetra(u'\x7f'); // "N" followed by it sorts after "NZ", before "O"

} // namespace

QString claveOrden(const QString &texto)
{
    QString grande = texto.toUpper();
    if (std::ranges::all_of(grande, [](QChar c) { return c.unicode() < 0x80; }))
        return grande; // nothing to take apart: most names of a large import
    const QString partido = grande.normalized(QString::NormalizationForm_D);
    QString clave;
    clave.reserve(partido.size());
    for (const QChar letra : partido) {
        if (letra.category() != QChar::Mark_NonSpacing)
            clave += letra;
        else if (letra == TildeDeLaEne && clave.endsWith(u'N'))
            clave += DetrasDeTodaLetra;
    }
    return clave;
}
