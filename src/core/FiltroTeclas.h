#pragma once

#include <QChar>
#include <QString>

/// What may be typed. Each returns the character to take instead of the one typed, or a null QChar
/// when the key is discarded. Backspace (8) always passes.

inline constexpr QChar TeclaRetroceso(8);

/// Only 0 to 9.
QChar filtrarCifra(QChar tecla);

/// Whether a text holds nothing but the digits 0 to 9.
bool sonCifras(QStringView texto);

/// Capitals, digits and " !$%&()*+,-./:;<=>?\_ºª¿¡çÇ"; letters become capitals.
QChar filtrarTexto(QChar tecla);

/// Whether a stored text may hold `c`: what can be typed, and the accented capitals that files
/// carry.
bool admitidoEnFichero(QChar c);
