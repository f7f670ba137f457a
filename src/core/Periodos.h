#pragma once

#include <QString>

/// Codes of a return's header.
inline constexpr quint8 PeriodicidadMensual = 1;
inline constexpr quint8 PeriodicidadAnual = 2;
inline constexpr quint8 Tipologia430 = 1;
inline constexpr quint8 Tipologia480 = 2;
inline constexpr quint8 PeriodoAnual = 12; ///< period under which an annual return is stored

inline constexpr QStringView Modelo430 = u"430";
inline constexpr QStringView Modelo480 = u"480";

/// Month name in capitals in the session's language; empty outside 1 to 12.
QString nombreMes(int mes);

/// "ANUAL" or "URTEKOA" for periodicity 2, else empty.
QString palabraPeriodicidad(int periodicidad);

/// Text of a return's period: the annual word or the month's name.
QString textoPeriodo(int periodicidad, int periodo);
