#pragma once

#include "core/Textos.h"

/// Month name in capitals; empty outside 1 to 12.
QString nombreMes(int mes, Idioma idioma = idiomaSesion());

/// "ANUAL" or "URTEKOA" for periodicity 2, else empty.
QString palabraPeriodicidad(int periodicidad, Idioma idioma = idiomaSesion());

/// Text of a return's period: the annual word or the month's name.
QString textoPeriodo(int periodicidad, int periodo, Idioma idioma = idiomaSesion());
