#pragma once

#include "dataservice/Codigos.h"

#include <QString>

#include <Msj.h>
#include <exception>

/// The texts that users see.

/// The session's language.
Idioma idiomaSesion();
void fijarIdioma(Idioma idioma);
/// The same as the number that the data service takes: 0 for Castilian, 10000 for Basque.
qint16 desplazamientoIdioma();

/// The text of the table, its placeholders %1, %2… not yet filled.
QString msj(Msj cual, Idioma idioma);
QString msj(Msj cual);

/// The same, filled in. Arguments are replaced in one pass, so that a "%2" inside a value stays.
template <class... Textos> QString msj(Msj cual, const QString &primero, const Textos &...otros)
{
    return msj(cual).arg(primero, otros...);
}

/// The k-th text after `primera` (0 is `primera` itself), for runs of consecutive numbers.
QString msjDesde(Msj primera, int k);

/// Two-language chooser for texts that are not in the table.
QString elegir(const QString &castellano, const QString &euskera, Idioma idioma = idiomaSesion());

class ErrorDatos;

/// What went wrong, for the user, in the session's language: a complete sentence.
QString textoFallo(const ErrorDatos &error);
QString textoFallo(const std::exception &error);
/// The exception being handled; to be called inside a catch block.
QString textoFalloActual();

/// Month name in capitals; empty outside 1 to 12.
QString nombreMes(int mes, Idioma idioma = idiomaSesion());

/// "ANUAL" or "URTEKOA" for periodicity 2, else empty.
QString palabraPeriodicidad(int periodicidad, Idioma idioma = idiomaSesion());

/// Text of a return's period: the annual word or the month's name.
QString textoPeriodo(int periodicidad, int periodo, Idioma idioma = idiomaSesion());
