#pragma once

#include <QStringView>

namespace servidor {

/// Whether a tax identifier (9 characters, upper case) has the form and the control character of a
/// DNI, NIE, special person (K, L, M) or entity.
bool nifValido(QStringView nif);

} // namespace servidor
