#pragma once

#include <QString>

/// Key under which a text sorts as a reader expects, compared unit by unit: letter case and accents
/// do not count, Ñ comes after N, Ç is a C.
QString claveOrden(const QString &texto);
