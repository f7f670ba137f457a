#pragma once

#include <QString>

/// Searching a text inside others as a reader does: letter case and accents do not count, but Ñ and
/// Ç are letters of their own.
namespace busqueda {

/// The text in the form that `contiene` looks for.
QString plegar(QString texto);

/// Whether `texto` has `plegado` anywhere. It copies nothing: 100,000 names take some milliseconds.
bool contiene(QStringView texto, QStringView plegado);

} // namespace busqueda
