#pragma once

#include <QList>
#include <QStringList>

class QPagedPaintDevice;
class QPainter;

namespace impreso {

/// A list on paper: as many A4 pages as it takes, each with the heading, the titles of the columns,
/// the date and its number.
struct Listado
{
    struct Columna
    {
        QString titulo;
        double ancho = 0; ///< millimetres; all of them fit between the margins
        bool aLaDerecha = false;
    };

    QString titulo;
    QString fecha; ///< as it is written in the session's language
    QList<Columna> columnas;
    QList<QStringList> filas; ///< a text a column

    int paginas() const; ///< at least one
    /// Draws them all; false when the device takes no more.
    bool dibujar(QPagedPaintDevice &dispositivo) const;
    void dibujarPagina(QPainter &pintor, int pagina) const; ///< from 0
};

} // namespace impreso
