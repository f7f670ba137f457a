#include "exchange/LineaIntercambio.h"

#include "core/Caracteres.h"
#include "declarants/CamposDeclarante.h"

#include <algorithm>
#include <array>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace intercambio {

namespace {

using campos::Clase;
using campos::Definicion;

/// The character of a byte in UTF-8; of no length when it may not stand in a line.
struct Letra
{
    std::array<char, 3> bytes{};
    std::uint8_t largo = 0;
};

const std::array<Letra, 256> &letras()
{
    static const auto tabla = [] {
        std::array<Letra, 256> letras{};
        for (std::size_t byte = 0; byte < letras.size(); ++byte) {
            const QChar c = windows1252::caracter(static_cast<uchar>(byte));
            if (c < u' ' || !admitidoEnFichero(c.toUpper()))
                continue;
            const QByteArray utf8 = QString(c).toUtf8();
            std::ranges::copy(utf8, letras[byte].bytes.begin());
            letras[byte].largo = static_cast<std::uint8_t>(utf8.size());
        }
        return letras;
    }();
    return tabla;
}

/// A column of figures, with zeros in front.
void escribirCifras(char *lugar, int ancho, qint64 valor)
{
    for (char *cifra = lugar + ancho; cifra != lugar; valor /= 10)
        *--cifra = static_cast<char>('0' + valor % 10);
}

std::optional<QChar> escribirTexto(char *lugar, qsizetype ancho, QStringView texto)
{
    const qsizetype caben = std::min(ancho, texto.size());
    for (qsizetype i = 0; i < caben; ++i) {
        const auto byte = windows1252::byte(texto[i]);
        if (!byte)
            return texto[i];
        lugar[i] = static_cast<char>(*byte);
    }
    std::fill(lugar + caben, lugar + ancho, ' ');
    return {};
}

/// A column of a text: a code with zeros in front, a telephone that is all zeros empty.
std::optional<QChar> escribirCampo(char *lugar, const Definicion &campo, QStringView texto)
{
    const qsizetype ancho = campo.anchoFichero;
    const qsizetype ceros
        = campo.clase == Clase::Codigo ? std::max<qsizetype>(0, ancho - texto.size()) : 0;
    std::fill_n(lugar, ceros, '0');
    if (campo.clase == Clase::Telefono
        && std::ranges::all_of(texto, [](QChar c) { return c == u'0'; }))
        texto = {};
    return escribirTexto(lugar + ceros, ancho - ceros, texto);
}

std::optional<QChar> escribirColumna(char *lugar, const Definicion &campo, const QVariant &valor)
{
    if (campo.clase == Clase::Numero || campo.clase == Clase::Contador) {
        escribirCifras(lugar, campo.anchoFichero, valor.toLongLong());
        return {};
    }
    // without a copy of the text: there is one a column
    if (valor.typeId() == QMetaType::QString)
        return escribirCampo(lugar, campo, *static_cast<const QString *>(valor.constData()));
    return escribirCampo(lugar, campo, valor.toString());
}

} // namespace

std::optional<QChar> escribirLinea(QByteArray &destino, const Registro &registro)
{
    const qsizetype principio = destino.size();
    destino.resize(principio + campos::AnchoLinea);
    for (const Definicion &campo : campos::tabla) {
        char *lugar = destino.data() + principio + campo.columna - 1;
        if (const auto malo = escribirColumna(lugar, campo, registro[campo.campo])) {
            destino.truncate(principio);
            return malo;
        }
    }
    destino += "\r\n";
    return {};
}

static Rechazado rechazado(int columna, uchar byte)
{
    const QChar c = windows1252::caracter(byte);
    return {columna, byte, c.isPrint() ? c : QChar()};
}

std::optional<Rechazado> leerLinea(QByteArrayView linea, ConjuntoDeclarantes &conjunto)
{
    const auto &tabla = letras();
    std::array<char, campos::AnchoLinea * sizeof(Letra::bytes)> bytes;
    std::array<std::size_t, campos::AnchoLinea + 1> lugares; // where each column starts in them
    std::size_t lugar = 0;
    for (std::size_t i = 0; i < campos::AnchoLinea; ++i) {
        const auto byte = static_cast<uchar>(linea[static_cast<qsizetype>(i)]);
        const Letra &letra = tabla[byte];
        if (letra.largo == 0)
            return rechazado(static_cast<int>(i) + 1, byte);
        lugares[i] = lugar;
        std::ranges::copy(letra.bytes, bytes.begin() + static_cast<std::ptrdiff_t>(lugar));
        lugar += letra.largo;
    }
    std::array<std::string_view, ConjuntoDeclarantes::Textos> textos;
    for (std::size_t i = 0; i < textos.size(); ++i) {
        const Definicion &campo = campos::tabla[i];
        const auto principio = static_cast<std::size_t>(campo.columna) - 1;
        const auto fin = principio + static_cast<std::size_t>(campo.anchoFichero);
        textos[i] = {bytes.data() + lugares[principio], lugares[fin] - lugares[principio]};
    }
    conjunto.anadir(textos);
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
