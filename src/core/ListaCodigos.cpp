#include "core/ListaCodigos.h"

#include <algorithm>

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
