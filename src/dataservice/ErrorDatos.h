#pragma once

#include <QString>

#include <stdexcept>

using namespace Qt::StringLiterals;

/// What can go wrong with a database file or a stored row. The text for the user is chosen by
/// whoever shows it, in the language of the session.
enum class Fallo {
    NoExiste, ///< the file is not there
    Danada, ///< not readable as a database, or truncated
    Ajena, ///< a database of another program
    MasNueva, ///< made by a newer version of this program
    EnUso, ///< locked by another program
    SinEspacio, ///< no room left on the disk
    SoloLectura, ///< the file or its folder cannot be written
    LecturaEscritura, ///< the disk failed
    NoEncontrado, ///< the row asked for is not there (any more)
    TieneDeclaraciones, ///< the declarant to delete still has returns
};

/// Thrown by the data service when it cannot do what it was asked; nothing has been changed then.
class ErrorDatos : public std::runtime_error
{
public:
    /// `objeto`: the file's path, or what was not found. `detalle`: technical, English.
    ErrorDatos(Fallo fallo, const QString &objeto, const QString &detalle = {})
        : std::runtime_error((objeto + u": "_s + detalle).toStdString())
        , m_fallo(fallo)
        , m_objeto(objeto)
    {
    }

    Fallo fallo() const { return m_fallo; }
    const QString &objeto() const { return m_objeto; }

private:
    Fallo m_fallo;
    QString m_objeto;
};
