#include "server/Nif.h"

#include <QString>

#include <algorithm>

namespace servidor {

namespace {

constexpr QStringView LetrasPersona = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView LetrasEntidad = u"JABCDEFGHI";

bool sonCifras(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool controlPersona(int numero, QChar control)
{
    return control == LetrasPersona[numero % LetrasPersona.size()];
}

// Every second figure, from the first on, counts double, and its two figures are added up.
int cifraEntidad(QStringView cifras)
{
    int suma = 0;
    for (qsizetype i = 0; i < cifras.size(); ++i) {
        const int peso = (i % 2 == 0 ? 2 : 1) * cifras[i].digitValue();
        suma += peso / 10 + peso % 10;
    }
    return (10 - suma % 10) % 10;
}

bool controlEntidad(QChar clase, QStringView cifras, QChar control)
{
    const int cifra = cifraEntidad(cifras);
    const bool porCifra = control == QChar(u'0' + cifra);
    const bool porLetra = control == LetrasEntidad[cifra];
    if (QStringView(u"ABEH").contains(clase))
        return porCifra;
    if (QStringView(u"NPQRSW").contains(clase))
        return porLetra;
    return porCifra || porLetra;
}

} // namespace

bool nifValido(QStringView nif)
{
    if (nif.size() != 9 || !sonCifras(nif.mid(1, 7)))
        return false;
    const QChar clase = nif.front();
    const QStringView cifras = nif.mid(1, 7);
    if (clase.digitValue() >= 0)
        return sonCifras(nif.first(1)) && controlPersona(nif.first(8).toInt(), nif.back());
    if (const qsizetype extranjero = QStringView(u"XYZ").indexOf(clase); extranjero >= 0)
        return controlPersona(static_cast<int>(extranjero) * 10'000'000 + cifras.toInt(),
                              nif.back());
    if (QStringView(u"KLM").contains(clase))
        return controlPersona(cifras.toInt(), nif.back());
    return QStringView(u"ABCDEFGHJNPQRSUVW").contains(clase)
        && controlEntidad(clase, cifras, nif.back());
}

} // namespace servidor
