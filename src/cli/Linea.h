#pragma once

#include "cli/Orden.h"
#include "dataservice/Codigos.h"

#include <optional>

/// The command line taken apart by the options of every command together, so that they may stand
/// anywhere.
struct Linea
{
    /// Wrong usage. The text is made later, once the language is known.
    struct Fallo
    {
        Msj cual;
        QString dato;
    };

    QStringList palabras; ///< everything that is neither an option nor the value of one
    Argumentos argumentos;
    std::optional<Fallo> fallo;
};

Linea leerLinea(const QStringList &argumentos);

/// Whether the line suits the command: its options, each as often as it may stand, and its
/// argument, which is taken into `linea`.
std::optional<Linea::Fallo> ajustar(Linea &linea, const Orden &orden);

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
