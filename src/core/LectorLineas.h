#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// Why a file that the user named cannot be read line by line, in the session's language; empty
/// when it can be tried. The program's own files, and what is no regular file, are refused.
QString motivoNoLegible(const QString &ruta);

/// The lines of a file, however long: only the first characters of each are kept. CR LF, LF and CR
/// end a line; the last one needs no end.
class LectorLineas
{
public:
    /// Keeps up to `ancho` bytes of a line. The device must be open and outlive the reader.
    LectorLineas(QIODevice &fichero, qsizetype ancho);

    /// Goes to the next line; false at the end. Throws ErrorDatos when reading fails.
    bool siguiente();

    QByteArrayView linea() const { return m_linea; }
    qint64 numero() const { return m_numero; } ///< from 1

private:
    bool llenar();
    bool tomarHastaFin();

    QIODevice &m_fichero;
    qsizetype m_ancho;
    QByteArray m_bloque;
    qsizetype m_lugar = 0;
    QByteArray m_linea;
    qint64 m_numero = 0;
    bool m_trasCr = false;
};
