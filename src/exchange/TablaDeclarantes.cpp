#include "exchange/TablaDeclarantes.h"

#include "core/Textos.h"

using namespace Qt::StringLiterals;

DeclaranteExportable DeclaranteExportable::de(const Registro &registro)
{
    if (esDanado(registro))
        return {registro[RegDanado::CSCO].toInt(), registro[RegDanado::DNI].toString(),
                nombreDanado(registro) + u": "_s + msj(Msj::RegistroDanado), registro};
    return {registro.value(RegDeclarante::CSCO).toInt(),
            registro.value(RegDeclarante::DNI).toString(),
            registro.value(RegDeclarante::NOMBRE).toString(), registro};
}

void TablaDeclarantes::CLEAR()
{
    m_filas.clear();
    m_claves.clear();
}

void TablaDeclarantes::ANADIR(const DeclaranteExportable &declarante)
{
    INSERTAR(COUNT() + 1, declarante);
}

void TablaDeclarantes::INSERTAR(int posicion, const DeclaranteExportable &declarante)
{
    if (PERTENECE(declarante.csco))
        return;
    m_claves.insert(declarante.csco);
    m_filas.insert(qBound(0, posicion - 1, COUNT()), declarante);
}

void TablaDeclarantes::BORRAR(int posicion)
{
    if (posicion < 1 || posicion > COUNT())
        return;
    m_claves.remove(ELEMENTO(posicion).csco);
    m_filas.removeAt(posicion - 1);
}

void TablaDeclarantes::filas(const QList<DeclaranteExportable> &filas)
{
    m_filas = filas;
    m_claves.clear();
    for (const auto &fila : filas)
        m_claves.insert(fila.csco);
}
