#include "dataservice/ClaveOrden.h"

#include <algorithm>
#include <array>

namespace {

constexpr QChar TildeDeLaEne(0x0303);
constexpr QChar DetrasDeTodaLetra(u'\x7f'); // "N" followed by it sorts after "NZ", before "O"
constexpr char16_t TotalLatinas = 0x250; // letters that are taken apart each by itself

QString porPartes(const QString &grande)
{
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

const QString &claveLatina(QChar letra)
{
    static const auto claves = [] {
        std::array<QString, TotalLatinas> tabla;
        for (char16_t i = 0; i < TotalLatinas; ++i)
            tabla[i] = porPartes(QChar(i));
        return tabla;
    }();
    return claves[letra.unicode()];
}

} // namespace

QString claveOrden(const QString &texto)
{
    QString grande = texto.toUpper();
    const auto hasta = [&](char16_t fin) {
        return std::ranges::all_of(grande, [fin](QChar c) { return c.unicode() < fin; });
    };
    if (hasta(0x80))
        return grande; // nothing to take apart: most names of a large import
    if (!hasta(TotalLatinas))
        return porPartes(grande);
    QString clave;
    clave.reserve(grande.size() + grande.size() / 4);
    for (const QChar letra : grande)
        clave += claveLatina(letra);
    return clave;
}
