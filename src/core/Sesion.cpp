#include "core/Sesion.h"

#include "core/CEntrada.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"

#include <functional>

/// Runs a step; a failure is noted once, however many steps it spoils.
static bool intentar(InicioSesion &inicio, const std::function<void()> &paso)
{
    try {
        paso();
        return true;
    } catch (...) {
        const QString fallo = textoFalloActual();
        if (!inicio.fallos.contains(fallo))
            inicio.fallos.append(fallo);
        return false;
    }
}

bool InicioSesion::primeraVez() const
{
    return ajustesLeidos && unico::la<CEntrada>().IDI().isEmpty();
}

InicioSesion iniciarSesion()
{
    InicioSesion inicio;
    intentar(inicio, [&] {
        auto traspaso = servicio::crear<SvrOstr::cTraspaso>();
        traspaso->mdbmod(rutas().datos);
        traspaso->mdbPath(rutas().tablas);
        inicio.terminar = traspaso->Traspaso();
    });
    if (!inicio.terminar)
        leerSesion(inicio);
    return inicio;
}

void leerSesion(InicioSesion &inicio)
{
    auto &entrada = unico::la<CEntrada>();
    intentar(inicio, [&] { entrada.InicializarContadores(); });
    intentar(inicio, [&] { entrada.LeerEjercicioPeriodoMinMax(); });
    inicio.ajustesLeidos = intentar(inicio, [&] { entrada.LeerIdioma(); });
    entrada.AplicarIdioma();
}
