#pragma once

#include "core/Busqueda.h"

/// The pick lists in the session's language, by name.
ListaCodigos cargarVias();
ListaCodigos cargarProvincias();
ListaCodigos cargarMunicipios(); ///< those of the home province
