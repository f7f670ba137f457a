#pragma once

#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrOstr.h"

/// While it lives, every call to the general data fails as a full disk does.
class GeneralAveriado
{
public:
    GeneralAveriado();
    ~GeneralAveriado();
    GeneralAveriado(const GeneralAveriado &) = delete;
    GeneralAveriado &operator=(const GeneralAveriado &) = delete;
};
