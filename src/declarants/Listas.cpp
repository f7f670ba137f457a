#include "declarants/Listas.h"

#include "core/Servicios.h"
#include "core/Textos.h"
#include "dataservice/SvrOstr.h"

using Cargador = void (SvrOstr::cDatosGeneral::*)(const QString &, Filas &);

static ListaCodigos cargar(Cargador metodo, const QStringView (&sql)[2])
{
    Filas filas;
    auto servicio = servicioLectura();
    (servicio.get()->*metodo)(sql[idiomaSesion() == Idioma::Castellano ? 0 : 1].toString(), filas);
    ListaCodigos lista;
    lista.reserve(filas.size());
    for (const QVariant &fila : std::as_const(filas)) {
        const auto celdas = fila.toList();
        lista.append({celdas.value(0).toString(), celdas.value(1).toString()});
    }
    return lista;
}

ListaCodigos cargarVias()
{
    return cargar(&SvrOstr::cDatosGeneral::CargarVias, ListasSql::Vias);
}

ListaCodigos cargarProvincias()
{
    return cargar(&SvrOstr::cDatosGeneral::CargarProvincias, ListasSql::Provincias);
}

ListaCodigos cargarMunicipios()
{
    return cargar(&SvrOstr::cDatosGeneral::CargarMunicipios, ListasSql::Municipios);
}
