#pragma once

#include "dataservice/ConjuntoDeclarantes.h"
#include "dataservice/Registros.h"

#include <QByteArray>
#include <QChar>
#include <QStringList>

#include <optional>

/// A line of the exchange file: a declarant in columns of fixed width, in Windows-1252.
namespace intercambio {

/// A character that cannot be in a line.
struct Rechazado
{
    int columna; ///< from 1
    uchar byte; ///< as it stands in the file
    QChar caracter; ///< null when the byte stands for none or for a control character
};

/// Appends the line of a RegDeclarante with its line end. When one of its characters is not in
/// Windows-1252 that character is returned and nothing appended.
std::optional<QChar> escribirLinea(QByteArray &destino, const Registro &registro);

/// Adds the declarant of a line to a set, its texts as they stand in their columns. What follows
/// the last column is ignored. A character that a declarant's texts may not hold is returned, and
/// nothing added.
/// The line must have at least campos::AnchoLinea bytes.
std::optional<Rechazado> leerLinea(QByteArrayView linea, ConjuntoDeclarantes &conjunto);

/// The lines that describe the format at the end of the error file.
QStringList descripcionFormato();

/// A text in Windows-1252, with "?" for what is not in it; for messages, not for data.
QByteArray codificar(const QString &texto);

} // namespace intercambio
