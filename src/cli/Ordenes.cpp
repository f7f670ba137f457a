#include "cli/Ordenes.h"

#include <algorithm>

extern const Orden OrdenDeclaranteAlta;
extern const Orden OrdenDeclarar430;
extern const Orden OrdenDeclarar480;
extern const Orden OrdenListarDeclarantes;
extern const Orden OrdenListarDeclaraciones;
extern const Orden OrdenImprimir;
extern const Orden OrdenImportar;
extern const Orden OrdenExportar;
extern const Orden OrdenIdioma;

static constexpr const Orden *Tabla[] = {
    &OrdenDeclaranteAlta,
    &OrdenDeclarar430,
    &OrdenDeclarar480,
    &OrdenListarDeclarantes,
    &OrdenListarDeclaraciones,
    &OrdenImprimir,
    &OrdenImportar,
    &OrdenExportar,
    &OrdenIdioma,
};

static constexpr Opcion Comunes[] = {
    {Comun::Carpeta, u"DIR", Msj::AyudaCarpeta},
    {Comun::Ayuda, {}, Msj::AyudaAyuda},
    {Comun::Version, {}, Msj::CliAyudaVersion},
};

std::span<const Orden *const> ordenes()
{
    return Tabla;
}

std::span<const Opcion> opcionesComunes()
{
    return Comunes;
}

qsizetype numeroPalabras(const Orden &orden)
{
    return orden.palabras.count(u' ') + 1;
}

const Orden *buscarOrden(const QStringList &palabras)
{
    const auto hallada = std::ranges::find_if(Tabla, [&](const Orden *orden) {
        return palabras.first(std::min(palabras.size(), numeroPalabras(*orden))).join(u' ')
            == orden->palabras;
    });
    return hallada == std::end(Tabla) ? nullptr : *hallada;
}
