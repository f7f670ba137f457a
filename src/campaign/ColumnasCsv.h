#pragma once

#include "dataservice/Codigos.h"

#include <QByteArrayView>
#include <QList>
#include <QStringList>

/// The columns of a file of returns: what their headings are called in both languages, and in which
/// places they stand in one file.
struct ColumnaCsv
{
    enum Que {
        Ninguna, ///< for people only: name, amount, reason
        Dni,
        Ejercicio,
        Periodo,
        Base,
        BaseRectificacion,
        CuotaRectificacion,
        Casilla,
    };

    Que que = Ninguna;
    int casilla = 0; ///< number of a box of the 480
    QString titulo; ///< as it stands in the file
};

/// The first line of a file.
struct EncabezadoCsv
{
    char separador = ';';
    QList<ColumnaCsv> columnas;
    QString modelo; ///< of all the returns in the file
    QString motivo; ///< why the file cannot be read, in the session's language; empty when it can

    /// Place of a column in the file; -1 when it is not there.
    qsizetype lugar(ColumnaCsv::Que que) const;
};

/// At most so many columns are read.
inline constexpr qsizetype MaximoColumnasCsv = 200;

EncabezadoCsv leerEncabezado(QByteArrayView linea);

/// The heading of a column in the session's language.
QString tituloColumna(ColumnaCsv::Que que);
/// Of the columns for people.
QString tituloNombre();
QString tituloMotivo();
