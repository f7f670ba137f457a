#include "declarants/cDecLista.h"

#include "core/Servicios.h"
#include "core/Textos.h"

Filas cDecLista::CargarDeclarantes()
{
    auto servicio = servicioDeclarante();
    servicio->mdbnameL(rutas().lectura);
    Filas filas;
    m_numdeclasel = servicio->dameResultado(filas, m_orden, desplazamientoIdioma());
    return filas;
}
