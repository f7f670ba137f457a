#pragma once

#include "cli/Orden.h"

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
