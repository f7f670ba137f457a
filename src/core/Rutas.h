#pragma once

#include <QString>

/// Where this session's files are. Set once at start-up, before anything else is used.
struct Rutas
{
    QString
        programa; ///< folder of the executable, or the one given with --carpeta; no final separator
    QString tablas; ///< folder of the databases, with final separator
    QString lectura; ///< lookup database
    QString datos; ///< model database
    QString copias; ///< folder of the backups, with final separator

    bool deUsuario = false; ///< the folder of one user of an installed program: made when missing

    /// The tables folder is "Tablas" under the program folder; but a program folder whose path
    /// contains "cliente" (any letter case, also inside a longer name) has it beside: the path
    /// before that word less the separator in front of it, then "Tablas".
    static Rutas desde(const QString &carpetaPrograma);

    /// Of a program that is installed for every user of the machine: all in "ostrel" under the
    /// user's data folder ($XDG_DATA_HOME, else ~/.local/share), whatever its path contains.
    static Rutas delUsuario();
};

/// The session's paths.
const Rutas &rutas();
void fijarRutas(const Rutas &nuevas);

/// Why the file that the user names must not be written, in the session's language; empty when
/// nothing speaks against it. Refused are the databases, their journals and their backups, by
/// whatever link or spelling they are named and also while they do not exist, the program itself,
/// and what is there but no regular file (a folder, a pipe, a device).
QString motivoRutaRechazada(const QString &ruta);
