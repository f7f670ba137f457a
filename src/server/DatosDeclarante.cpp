#include "server/DatosDeclarante.h"

#include "server/LectorRegistro.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace servidor {

namespace {

using namespace RegDeclarante;

constexpr qint32 Maximo = std::numeric_limits<qint32>::max();

/// Whether making capitals and trimming (blanks apart) would leave a text as it is: printable ASCII
/// without small letters, and the accented capitals of Latin-1.
bool yaNormalizado(std::string_view texto)
{
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto byte = static_cast<unsigned char>(texto[i]);
        const bool plano = byte >= ' ' && byte <= '~' && !(byte >= 'a' && byte <= 'z');
        if (plano)
            continue;
        // C3 80 to C3 9E are U+00C0 to U+00DE
        const auto otro = static_cast<unsigned char>(i + 1 < texto.size() ? texto[++i] : 0);
        if (byte != 0xC3 || otro < 0x80 || otro > 0x9E)
            return false;
    }
    return true;
}

std::string_view sinBlancos(std::string_view texto)
{
    const auto primero = std::min(texto.find_first_not_of(' '), texto.size());
    return texto.substr(primero, texto.find_last_not_of(' ') + 1 - primero);
}

} // namespace

std::optional<qint32> numero(std::string_view texto, qint32 maximo)
{
    qint32 valor = 0;
    const char *fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, valor);
    const bool bien = texto.empty() || (leido.ec == std::errc() && leido.ptr == fin);
    return bien && valor >= 0 && valor <= maximo ? std::optional(valor) : std::nullopt;
}

DatosDeclarante DatosDeclarante::de(const Registro &registro)
{
    LectorRegistro lector(registro, Total);
    DatosDeclarante datos;
    datos.csco = lector.entero(CSCO, 0, Maximo);
    for (int i = DNI; i <= TELEFONO; ++i) {
        const auto campo = static_cast<Campo>(i);
        const bool escrito = registro.value(i).typeId() == QMetaType::QString;
        datos.textos[static_cast<std::size_t>(i)] = escrito || !esCodigo(campo)
            ? lector.texto(i).toStdString()
            : std::to_string(lector.entero(i, 0, Maximo));
    }
    lector.exigirValido();
    return datos;
}

void DatosDeclarante::tomar(const ConjuntoDeclarantes &conjunto, qsizetype cual)
{
    csco = 0;
    for (int i = DNI; i <= TELEFONO; ++i) {
        const std::string_view texto = sinBlancos(conjunto.texto(cual, static_cast<Campo>(i)));
        std::string &destino = textos[static_cast<std::size_t>(i)];
        if (yaNormalizado(texto))
            destino = texto;
        else
            destino = normalizado(QString::fromUtf8(texto.data(), qsizetype(texto.size())))
                          .toStdString();
    }
}

std::optional<qint32> DatosDeclarante::codigo(Campo campo) const
{
    const qint32 maximo = campo == NUMERO ? 99'999 : campo == CODPROV ? 99 : Maximo;
    return numero(textos[campo], maximo);
}

} // namespace servidor
