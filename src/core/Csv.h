#pragma once

#include <QByteArrayView>
#include <QStringList>

#include <optional>

/// Tables as the spreadsheet programs of this country read and write them: one line a row, ";"
/// between the fields, quotes where they are needed.
namespace csv {

inline constexpr char Separador = ';';
/// Begins a file that is UTF-8, so that a spreadsheet takes it for that.
inline constexpr QByteArrayView Marca("\xEF\xBB\xBF");

/// The fields of a line, without the blanks around them; nothing when a quote is left open, or more
/// than `maximo` fields stand in it. Each field is UTF-8 where it can be, else Windows-1252.
std::optional<QStringList> partir(QByteArrayView linea, char separador, qsizetype maximo);

/// A text that a spreadsheet would take for a formula gets an apostrophe in front, unless it is an
/// amount.
QString inofensivo(const QString &campo);

/// A line to be written, with its end, in UTF-8, its fields made harmless.
QByteArray linea(const QStringList &campos);

} // namespace csv
