#pragma once

#include "cli/Orden.h"
#include "dataservice/Codigos.h"

#include <optional>

// What several commands read out of their options.

/// Why a command is not carried out; nothing when it can go on.
using Rechazo = std::optional<Resultado>;

/// Wrong usage: `valor` is none for `opcion`.
Resultado valorMalo(QStringView opcion, const QString &valor);

/// The option's value as a whole number from 1 to `maximo`, digits only; 0 when it is none.
int numeroDado(const Argumentos &argumentos, QStringView opcion, int maximo);
inline constexpr int UltimoEjercicio = 9999;

/// Loads the declarant stored under `dni` and makes it the header's.
Rechazo tomarDeclarante(const QString &dni);
