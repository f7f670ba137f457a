#include "exchange/LineaIntercambio.h"

#include "core/Caracteres.h"
#include "declarants/CamposDeclarante.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace intercambio {

namespace {

using campos::Clase;
using campos::Definicion;

/// Whether each byte may stand in a line.
const std::array<bool, 256> &admitidos()
{
    static const auto tabla = [] {
        std::array<bool, 256> admitido{};
        for (std::size_t byte = 0; byte < admitido.size(); ++byte) {
            const QChar c = windows1252::caracter(static_cast<uchar>(byte));
            admitido[byte] = c >= u' ' && admitidoEnFichero(c.toUpper());
        }
        return admitido;
    }();
    return tabla;
}

QString columna(QByteArrayView linea, const Definicion &campo)
{
    QString texto(campo.anchoFichero, Qt::Uninitialized);
    std::ranges::transform(linea.sliced(campo.columna - 1, campo.anchoFichero), texto.begin(),
                           [](char byte) { return windows1252::caracter(uchar(byte)); });
    return texto;
}

/// A column as it is written: numbers with zeros in front, a telephone that is zero empty.
QString textoColumna(const Definicion &campo, const QVariant &valor)
{
    switch (campo.clase) {
    case Clase::Numero:
    case Clase::Contador:
        return QString::number(valor.toLongLong()).rightJustified(campo.anchoFichero, u'0');
    case Clase::Codigo:
        return valor.toString().rightJustified(campo.anchoFichero, u'0');
    case Clase::Telefono:
        return valor.toLongLong() == 0 ? QString() : valor.toString();
    case Clase::Texto:
        break;
    }
    return valor.toString();
}

std::optional<QChar> escribirColumna(char *lugar, int ancho, const QString &texto)
{
    const qsizetype caben = std::min<qsizetype>(ancho, texto.size());
    for (qsizetype i = 0; i < caben; ++i) {
        const auto byte = windows1252::byte(texto[i]);
        if (!byte)
            return texto[i];
        lugar[i] = static_cast<char>(*byte);
    }
    std::fill(lugar + caben, lugar + ancho, ' ');
    return {};
}

} // namespace

std::optional<QChar> escribirLinea(QByteArray &destino, const Registro &registro)
{
    const qsizetype principio = destino.size();
    destino.resize(principio + campos::AnchoLinea);
    for (const Definicion &campo : campos::tabla) {
        char *lugar = destino.data() + principio + campo.columna - 1;
        const QString texto = textoColumna(campo, registro.value(campo.campo));
        if (const auto malo = escribirColumna(lugar, campo.anchoFichero, texto)) {
            destino.truncate(principio);
            return malo;
        }
    }
    destino += "\r\n";
    return {};
}

std::optional<Rechazado> leerLinea(QByteArrayView linea, Registro &registro)
{
    linea = linea.first(campos::AnchoLinea);
    const auto malo = std::ranges::find_if_not(
        linea, [](char byte) { return admitidos()[static_cast<uchar>(byte)]; });
    if (malo != linea.end()) {
        const auto byte = static_cast<uchar>(*malo);
        const QChar c = windows1252::caracter(byte);
        return Rechazado{static_cast<int>(malo - linea.begin()) + 1, byte,
                         c.isPrint() ? c : QChar()};
    }
    Registro leido;
    leido.reserve(RegDeclarante::Total);
    leido += 0;
    for (const Definicion &campo : campos::tabla)
        leido += campo.clase == Clase::Contador ? QVariant(0.0) : QVariant(columna(linea, campo));
    registro = std::move(leido);
    return {};
}

QStringList descripcionFormato()
{
    QStringList lineas{u"FORMATO: "_s};
    for (const Definicion &campo : campos::tabla)
        lineas += u"%1%2(%3)"_s.arg(QString(9, u' '), campo.enFichero).arg(campo.anchoFichero);
    return lineas;
}

QByteArray codificar(const QString &texto)
{
    QByteArray bytes;
    for (const QChar c : texto)
        bytes += static_cast<char>(windows1252::byte(c).value_or('?'));
    return bytes;
}

} // namespace intercambio
