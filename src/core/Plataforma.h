#pragma once

#include <QString>

/// What the program asks of the system it runs on and Qt has no word for.
namespace plataforma {

/// The program's version, three numbers joined with points: on Windows those of the version record
/// of its own file, elsewhere those it was built with.
QString version();

/// Lets the setup see that the program runs (the named mutex "Ostrel de seguros" of Windows). A
/// second copy starts all the same.
void anunciar();

/// Results of commands are written in UTF-8: so that a console of Windows reads them so, too.
void prepararConsola();

} // namespace plataforma
