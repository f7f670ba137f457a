#pragma once

#include "core/MarcaCarga.h"

#include <QString>

class PantallaBase;

/// What the user wants of a save over a record that another copy of the program may have changed
/// since it was loaded.
enum class Decision {
    Guardar, ///< nothing was changed, or it is to be replaced
    Conservar, ///< what is stored is to be loaded again
    Seguir, ///< neither: back to the screen, nothing is lost
};

/// Asks when `estado` calls for it; `nombre` is the record as the user knows it.
Decision consultarGuardado(PantallaBase *pantalla, EstadoCarga estado, const QString &nombre);
