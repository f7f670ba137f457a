#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

class ErrorDatos;

/// What a model database or a copy of it holds.
struct ResumenBase
{
    QString ruta;
    QDateTime fecha; ///< last change of the file
    qint32 declarantes = 0;
    qint32 declaraciones = 0;
};

/// What the data service has to show the user, or to ask. The program hands an implementation to
/// registrarServidor(); the service itself never opens a window. `padre`: native handle of the
/// window that owns what is opened, 0 for none.
class Dialogos
{
public:
    enum class Trabajo { Copia, CopiaDelDia, Restauracion };

    Dialogos() = default;
    virtual ~Dialogos() = default;
    Dialogos(const Dialogos &) = delete;
    Dialogos &operator=(const Dialogos &) = delete;

    virtual void abrirDireccion(const QString &direccion, quintptr padre) = 0;
    /// Describes the assistance that stands at `direccion`.
    virtual void informarAsistencia(const QString &direccion, quintptr padre) = 0;

    virtual void copiaHecha(const QString &ruta, qint64 bytes, const QDateTime &fecha,
                            quintptr padre)
        = 0;
    /// The copy to restore, `propuesta` being offered; empty when the user gave up. `filtro` as a
    /// file dialogue takes it.
    virtual QString elegirCopia(const QString &propuesta, const QString &filtro, quintptr padre)
        = 0;
    /// Whether `copia` is to take the place of `actual` (nothing: it cannot be read).
    virtual bool confirmarRestauracion(const std::optional<ResumenBase> &actual,
                                       const ResumenBase &copia, quintptr padre)
        = 0;
    /// `anteriores`: where the data that were there have been kept; empty when there were none.
    virtual void restaurada(const QString &copia, const QString &anteriores, quintptr padre) = 0;
    /// What was asked for could not be done; nothing has been changed.
    virtual void fallo(Trabajo trabajo, const ErrorDatos &error, quintptr padre) = 0;
};
