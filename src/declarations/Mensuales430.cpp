#include "declarations/Mensuales430.h"

#include "core/Servicios.h"
#include "declarations/cDatos480.h"

std::optional<Mensuales430> cargarMensuales(const cDatos480 &registro)
{
    Filas lista;
    if (!registro.NumDecl430(lista))
        return {};
    Mensuales430 anno;
    for (const QVariant &entrada : std::as_const(lista)) {
        const auto fila = entrada.toList();
        const int mes = fila.value(Fila430::PERIODO).toInt();
        if (mes < 1 || mes > 12)
            continue;
        qint32 csde = fila.value(Fila430::CSDE).toInt();
        Registro figuras;
        servicioDeclaracion()->Cargar430(csde, figuras);
        const Mensuales430::Mes datos{figuras.value(Reg430::BASETOT).toDouble(),
                                      figuras.value(Reg430::CUOTATOT).toDouble()};
        anno.meses.at(static_cast<size_t>(mes - 1)) = datos;
        anno.base += datos.base;
        anno.cuota += datos.cuota;
    }
    return anno;
}
