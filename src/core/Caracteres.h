#pragma once

#include <QChar>
#include <QString>

#include <optional>

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

/// Windows-1252, strict both ways. Qt has it only where it was built with ICU.
namespace windows1252 {

/// The character of a byte; a null one for the five bytes that have none.
QChar caracter(uchar byte);

/// The byte of a character; nothing when the code page has none for it.
std::optional<uchar> byte(QChar caracter);

} // namespace windows1252
