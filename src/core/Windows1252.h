#pragma once

#include <QChar>

#include <optional>

/// Windows-1252, strict both ways. Qt has it only where it was built with ICU.
namespace windows1252 {

/// The character of a byte; a null one for the five bytes that have none.
QChar caracter(uchar byte);

/// The byte of a character; nothing when the code page has none for it.
std::optional<uchar> byte(QChar caracter);

} // namespace windows1252
