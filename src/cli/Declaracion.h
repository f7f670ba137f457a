#pragma once

#include "cli/Orden.h"

#include <optional>

/// What both models' commands have in common.

/// An amount given on the command line, in cents, or why it is refused. An empty one is refused
/// too: it is a slip of whoever wrote the command.
struct ImporteDado
{
    double centimos = 0;
    QString motivo;
};
ImporteDado importeDado(const QString &texto);

/// Makes the header of a new return of --dni and --ejercicio and checks it; null when it can be
/// made, else why not.
std::optional<Resultado> prepararCabecera(const Argumentos &argumentos, const QString &modelo,
                                          const QString &periodo);

/// What was saved; `clave` is what the service answered, below 1 for a refusal.
Resultado resultadoGuardar(qint32 clave, double total);
