#pragma once

#include <QList>
#include <QStringList>

#include <exception>
#include <functional>

/// Preparation of the session's data, the same for the window and the command line. The paths
/// (Rutas.h) must be set.
struct InicioSesion
{
    bool terminar = false; ///< the data service asks the program to end, without a message
    bool ajustesLeidos = false; ///< the stored settings could be read
    QList<std::exception_ptr> fallos; ///< what could not be done

    /// The same, each a sentence for the user in the language of the moment.
    QStringList textos() const;

    /// No language was ever chosen.
    bool primeraVez() const;
    /// Runs a further step; what it fails with is kept.
    bool intentar(const std::function<void()> &paso);
};

/// Lets the data service bring the databases up to date, then reads the session's state. A step
/// that fails is noted and the others go on.
InicioSesion iniciarSesion();

/// Reads the session's state again: counters, bounds, language. Part of the above.
void leerSesion(InicioSesion &inicio);

/// Settings that could not be read at the start (the database was locked) are read now. True when
/// the language has changed by that, so that the screens have to be told; nothing happens when they
/// are known already or still cannot be read.
bool completarSesion();

/// Lets the data service look through the whole database, once a process: for after the window is
/// shown. Throws ErrorDatos.
void comprobarDatos();

/// Takes the stored language, when it can be read, and creates nothing; before there is a session.
void leerIdiomaGuardado();
