#include "core/FiltroTeclas.h"

#include <algorithm>

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
