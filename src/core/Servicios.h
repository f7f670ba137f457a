#pragma once

#include "core/Rutas.h"
#include "dataservice/SvrOstr.h"

/// New service objects with the session's database paths set. Each is for one call.

inline std::unique_ptr<SvrOstr::cDatosGeneral> servicioDatos()
{
    auto servicio = servicio::crear<SvrOstr::cDatosGeneral>();
    servicio->mdbname(rutas().datos);
    return servicio;
}

inline std::unique_ptr<SvrOstr::cDatosGeneral> servicioLectura()
{
    auto servicio = servicio::crear<SvrOstr::cDatosGeneral>();
    servicio->mdbname(rutas().lectura);
    return servicio;
}

inline std::unique_ptr<SvrOstr::cDeclarante> servicioDeclarante()
{
    auto servicio = servicio::crear<SvrOstr::cDeclarante>();
    servicio->mdbnameM(rutas().datos);
    return servicio;
}

inline std::unique_ptr<SvrOstr::cDeclaracion> servicioDeclaracion()
{
    auto servicio = servicio::crear<SvrOstr::cDeclaracion>();
    servicio->mdbname(rutas().datos);
    return servicio;
}
