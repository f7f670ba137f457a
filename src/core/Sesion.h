#pragma once

#include <QStringList>

/// Preparation of the session's data, the same for the window and the command line. The paths
/// (Rutas.h) must be set.
struct InicioSesion
{
    bool terminar = false; ///< the data service asks the program to end, without a message
    bool ajustesLeidos = false; ///< the stored settings could be read
    QStringList fallos; ///< what could not be done, each a sentence for the user

    /// No language was ever chosen.
    bool primeraVez() const;
};

/// Lets the data service bring the databases up to date, then reads the session's state. A step
/// that fails is noted and the others go on.
InicioSesion iniciarSesion();

/// Reads the session's state again: counters, bounds, language. Part of the above.
void leerSesion(InicioSesion &inicio);
