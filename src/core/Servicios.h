#pragma once

#include "core/Rutas.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "dataservice/SvrKtComunLib.h"
#include "dataservice/SvrOstr.h"

#include <utility>

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

/// Runs a call about one declarant or return; when that is not stored any more, the failure tells
/// it by `nombre`.
template <class F> decltype(auto) nombrando(const QString &nombre, F &&f)
{
    try {
        return std::forward<F>(f)();
    } catch (const ErrorDatos &error) {
        const bool falta
            = error.fallo() == Fallo::SinDeclarante || error.fallo() == Fallo::SinDeclaracion;
        if (!falta || !error.objeto().isEmpty())
            throw;
        throw ErrorDatos(error.fallo(), nombre);
    }
}

/// The copy of the model database, ready for CrearBackup, or for CrearRestore when `restaurar`.
/// `ventana`: native handle of the window that owns its dialogues.
std::unique_ptr<SvrKtComunLib::cSaveAsRestore> servicioCopia(bool restaurar, quintptr ventana = 0);
