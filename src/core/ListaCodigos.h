#pragma once

#include <QList>
#include <QString>

/// Code and name of a street type, province or municipality.
struct ElementoLista
{
    QString codigo; ///< as the table holds it: "20", "1", "CL"
    QString nombre;
};
using ListaCodigos = QList<ElementoLista>;

/// Position of the element with `codigo` (numbers without regard to leading zeros); -1 when there
/// is none.
int posicionCodigo(const ListaCodigos &lista, const QString &codigo);

/// The same as a pointer into the list; null when there is none.
const ElementoLista *buscarCodigo(const ListaCodigos &lista, const QString &codigo);
