#include "exchange/TablaDeclarantes.h"

static qint32 claveDe(const Registro &declarante)
{
    return declarante.value(RegDeclarante::CSCO).toInt();
}

void TablaDeclarantes::CLEAR()
{
    m_filas.clear();
    m_claves.clear();
}

void TablaDeclarantes::ANADIR(const Registro &declarante)
{
    INSERTAR(COUNT() + 1, declarante);
}

void TablaDeclarantes::INSERTAR(int posicion, const Registro &declarante)
{
    if (PERTENECE(claveDe(declarante)))
        return;
    m_claves.insert(claveDe(declarante));
    m_filas.insert(qBound(0, posicion - 1, COUNT()), QVariant(declarante));
}

void TablaDeclarantes::BORRAR(int posicion)
{
    if (posicion < 1 || posicion > COUNT())
        return;
    m_claves.remove(claveDe(ELEMENTO(posicion)));
    m_filas.removeAt(posicion - 1);
}

void TablaDeclarantes::filas(const Filas &filas)
{
    m_filas = filas;
    m_claves.clear();
    for (const QVariant &fila : filas)
        m_claves.insert(claveDe(fila.toList()));
}
