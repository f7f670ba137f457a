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
    EnlaceRoto, ///< a link that leads nowhere stands in its place
    Lectura, ///< it cannot be read: no permission, or the disk failed
    Incompleta, ///< a table, or a row that has to be there, is missing
    Restriccion, ///< a row breaks a rule of the database
    TiposDeMas, ///< more rates in a year than a return has bands; `objeto` is the year
    SinDeclarante, ///< the declarant is not stored (any more); `objeto` its name, where known
    SinDeclaracion, ///< the same of a return
    NoEsFichero, ///< a folder, a device, a pipe
    EsElPropio, ///< the file to restore from is the one in use
    TieneDeclaraciones, ///< the declarant to delete still has returns
    RegistroDanado, ///< what is stored does not match its check value; `objeto` says of whom, of
                    ///< what
};

/// What an error number of the system means for the user.
Fallo falloDeSistema(int codigo);

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
