#include "core/Csv.h"

#include "core/Caracteres.h"
#include "core/Importe.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace csv {

static QString texto(QByteArrayView bytes)
{
    if (std::ranges::all_of(bytes, [](char c) { return static_cast<uchar>(c) < 0x80; }))
        return QString::fromLatin1(bytes).trimmed();
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString leido = utf8(bytes);
    if (utf8.hasError()) {
        leido.clear();
        for (const char byte : bytes) {
            const QChar c = windows1252::caracter(static_cast<uchar>(byte));
            leido += c.isNull() ? QChar(QChar::ReplacementCharacter) : c;
        }
    }
    return leido.trimmed();
}

/// Takes a field that begins with a quote; where it ends, or -1.
static qsizetype tomarEntrecomillado(QByteArrayView linea, qsizetype desde, QByteArray &campo)
{
    for (qsizetype i = desde + 1; i < linea.size(); ++i) {
        if (linea[i] != '"')
            campo += linea[i];
        else if (i + 1 < linea.size() && linea[i + 1] == '"')
            campo += linea[i++];
        else
            return i + 1;
    }
    return -1;
}

std::optional<QStringList> partir(QByteArrayView linea, char separador, qsizetype maximo)
{
    QStringList campos;
    for (qsizetype lugar = 0; lugar <= linea.size(); ++lugar) {
        if (campos.size() == maximo)
            return {};
        if (lugar < linea.size() && linea[lugar] == '"') {
            QByteArray campo;
            lugar = tomarEntrecomillado(linea, lugar, campo);
            if (lugar < 0 || (lugar < linea.size() && linea[lugar] != separador))
                return {};
            campos += texto(campo);
        } else {
            const auto fin = linea.indexOf(separador, lugar);
            const auto hasta = fin < 0 ? linea.size() : fin;
            campos += texto(linea.sliced(lugar, hasta - lugar));
            lugar = hasta;
        }
    }
    return campos;
}

QString inofensivo(const QString &campo)
{
    static constexpr QStringView formula(u"=+-@\t\r");
    const bool peligroso = !campo.isEmpty() && formula.contains(campo.front());
    return peligroso && !leerImporte(campo).valido() ? u'\'' + campo : campo;
}

QByteArray linea(const QStringList &campos)
{
    QStringList escritos;
    for (const QString &campo : campos) {
        QString escrito = inofensivo(campo);
        const bool comillas = std::ranges::any_of(
            escrito, [](QChar c) { return c == u'"' || c == QLatin1Char(Separador) || c < u' '; });
        if (comillas)
            escrito = u'"' + escrito.replace(u"\""_s, u"\"\""_s) + u'"';
        escritos += escrito;
    }
    return escritos.join(QLatin1Char(Separador)).toUtf8() + "\r\n";
}

} // namespace csv
