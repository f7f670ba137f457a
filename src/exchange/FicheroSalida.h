#pragma once

#include <QByteArray>
#include <QFile>

/// A text file being written. When a write fails, what stays in the file are the whole lines that
/// had been written. Failures are thrown as ErrorDatos.
class FicheroSalida
{
public:
    enum Modo {
        Sobre, ///< what stands in the file is lost
        EnSuLugar, ///< whatever stands there, a link too, is taken away and not written through
    };

    FicheroSalida(const QString &ruta, Modo modo);
    /// Standard output, called "-" in messages.
    FicheroSalida();

    /// `lineas` is whole lines.
    void escribir(QByteArrayView lineas);
    /// Hands over to the system what is still held back.
    void terminar();
    /// Waits until all of it is on the disk, where it is on one.
    void asegurar();
    qint64 lineas() const { return m_lineas; } ///< handed over, whole

private:
    [[noreturn]] void fallar(qsizetype escritos);

    QFile m_fichero;
    QByteArray m_pendiente;
    qint64 m_lineas = 0;
};
