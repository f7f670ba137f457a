#include "core/Busqueda.h"

#include <algorithm>
#include <array>

namespace busqueda {

static constexpr char16_t TotalLatinas = 0x250; ///< Latin letters, with accents or without

static QChar mayusculaSinTilde(QChar c)
{
    const QChar mayuscula = c.toUpper();
    if (mayuscula == u'Ñ' || mayuscula == u'Ç')
        return mayuscula;
    const QString partes = mayuscula.decomposition();
    return partes.isEmpty() ? mayuscula : partes.front();
}

static QChar plegar(QChar c)
{
    static const auto latinas = [] {
        std::array<QChar, TotalLatinas> tabla;
        char16_t latina = 0;
        for (QChar &c : tabla)
            c = mayusculaSinTilde(QChar(latina++));
        return tabla;
    }();
    return c.unicode() < TotalLatinas ? latinas[c.unicode()] : mayusculaSinTilde(c);
}

QString plegar(QString texto)
{
    for (QChar &c : texto)
        c = plegar(c);
    return texto;
}

bool contiene(QStringView texto, QStringView plegado)
{
    const auto igual = [](QChar uno, QChar otro) { return plegar(uno) == otro; };
    return plegado.isEmpty()
        || std::search(texto.begin(), texto.end(), plegado.begin(), plegado.end(), igual)
        != texto.end();
}

} // namespace busqueda

static QString sinCeros(const QString &codigo)
{
    bool esNumero = false;
    const int numero = codigo.toInt(&esNumero);
    return esNumero ? QString::number(numero) : codigo;
}

int posicionCodigo(const ListaCodigos &lista, const QString &codigo)
{
    const auto hallado = std::ranges::find(lista, sinCeros(codigo), &ElementoLista::codigo);
    return hallado == lista.end() ? -1 : static_cast<int>(hallado - lista.begin());
}

const ElementoLista *buscarCodigo(const ListaCodigos &lista, const QString &codigo)
{
    const int posicion = posicionCodigo(lista, codigo);
    return posicion < 0 ? nullptr : &lista.at(posicion);
}
