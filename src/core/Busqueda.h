#pragma once

#include <QList>
#include <QString>

/// Searching a text inside others as a reader does: letter case and accents do not count, but Ñ and
/// Ç are letters of their own.
namespace busqueda {

/// The text in the form that `contiene` looks for.
QString plegar(QString texto);

/// Whether `texto` has `plegado` anywhere. It copies nothing: 100,000 names take some milliseconds.
bool contiene(QStringView texto, QStringView plegado);

} // namespace busqueda

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
