#include "declarants/cDecLista.h"

#include "core/Servicios.h"
#include "core/Textos.h"

QList<DeclaranteListado> cDecLista::CargarDeclarantes()
{
    using enum FilaDeclarante::Columna;
    auto servicio = servicioDeclarante();
    servicio->mdbnameL(rutas().lectura);
    Filas filas;
    m_numdeclasel = servicio->dameResultado(filas, m_orden, desplazamientoIdioma());
    QList<DeclaranteListado> lista;
    lista.reserve(filas.size());
    for (const QVariant &fila : std::as_const(filas)) {
        const auto celdas = fila.toList();
        lista.append({celdas.value(CSCO).toInt(), celdas.value(DNI).toString(),
                      celdas.value(NOMBRE).toString(), celdas.value(NOMMUN).toString(),
                      celdas.value(NOMPROV).toString(), celdas.value(NUM430).toInt(),
                      celdas.value(NUM480).toInt()});
    }
    return lista;
}

QList<DeclaranteReciente> cDecLista::UltimosDeclarantes()
{
    using enum FilaReciente::Columna;
    Filas filas;
    servicioDeclarante()->ObtenerUltimosDeclarantes(filas);
    QList<DeclaranteReciente> lista;
    for (const QVariant &fila : std::as_const(filas)) {
        const auto celdas = fila.toList();
        lista.append({celdas.value(CSCO).toInt(), celdas.value(DNI).toString(),
                      celdas.value(NOMBRE).toString()});
    }
    return lista;
}
