#include "dataservice/ClaveOrden.h"

namespace {

constexpr QChar TildeDeLaEne(0x0303);
constexpr QChar DetrasDeTodaLetra(u'\x7f'); // "N" followed by it sorts after "NZ", before "O"

} // namespace

QString claveOrden(const QString &texto)
{
    const QString partido = texto.toUpper().normalized(QString::NormalizationForm_D);
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
