#pragma once

#include <array>
#include <optional>

class cDatos480;

/// The monthly 430 returns of a 480's exercise.
struct Mensuales430
{
    struct Mes
    {
        double base = 0; ///< total base, cents
        double cuota = 0; ///< total quota, cents
    };

    std::array<std::optional<Mes>, 12> meses; ///< of two returns of one month, the last one loaded
    double base = 0; ///< running totals: every return counts
    double cuota = 0;
};

/// Loads them; nothing when the exercise has none.
std::optional<Mensuales430> cargarMensuales(const cDatos480 &registro);
