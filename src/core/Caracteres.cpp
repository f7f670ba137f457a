#include "core/Caracteres.h"

#include <algorithm>
#include <array>

static constexpr QStringView Admitidos = u"0123456789"
                                         u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ"
                                         u" !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ";
static constexpr QStringView Acentuadas = u"ÁÉÍÓÚÀÈÌÒÙÄËÏÖÜÂÊÎÔÛ";

static bool esCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QChar filtrarCifra(QChar tecla)
{
    return tecla == TeclaRetroceso || esCifra(tecla) ? tecla : QChar();
}

bool sonCifras(QStringView texto)
{
    return std::ranges::all_of(texto, esCifra);
}

QChar filtrarTexto(QChar tecla)
{
    if (tecla == TeclaRetroceso)
        return tecla;
    const QChar mayuscula = tecla.toUpper();
    return Admitidos.contains(mayuscula) ? mayuscula : QChar();
}

bool admitidoEnFichero(QChar c)
{
    return Admitidos.contains(c) || Acentuadas.contains(c);
}

namespace windows1252 {

// Bytes 80 to 9F; all others are the character of their own number.
static constexpr uchar Primero = 0x80;
static constexpr std::array<char16_t, 32> Propios{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0, //
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

static constexpr bool esPropio(unsigned codigo)
{
    return codigo >= Primero && codigo < Primero + Propios.size();
}

QChar caracter(uchar byte)
{
    return esPropio(byte) ? Propios[byte - Primero] : char16_t(byte);
}

std::optional<uchar> byte(QChar caracter)
{
    const char16_t codigo = caracter.unicode();
    if (codigo <= 0xFF && !esPropio(codigo))
        return static_cast<uchar>(codigo);
    const auto hallado = codigo == 0 ? Propios.end() : std::ranges::find(Propios, codigo);
    if (hallado == Propios.end())
        return {};
    return static_cast<uchar>(Primero + (hallado - Propios.begin()));
}

} // namespace windows1252
