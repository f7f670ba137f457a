#include "declarants/cDecLista.h"

#include "core/Servicios.h"
#include "core/Textos.h"
#include "dataservice/ClaveOrden.h"
#include "dataservice/ErrorDatos.h"
#include "declarants/Listas.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <vector>

namespace {

/// Makes rows of full records. Rows of one town share its name, so that a long list stays small.
class Lector
{
public:
    Lector()
    {
        for (const auto &provincia : cargarProvincias())
            m_provincias.insert(provincia.codigo.toInt(), provincia.nombre);
    }

    DeclaranteListado leer(const Registro &registro)
    {
        if (esDanado(registro))
            return leerDanado(registro);
        using enum RegDeclarante::Campo;
        return {registro[CSCO].toInt(),
                registro[DNI].toString(),
                registro[NOMBRE].toString(),
                *m_municipios.insert(registro[NOMMUN].toString()),
                m_provincias.value(registro[CODPROV].toInt()),
                registro[NUM430].toInt(),
                registro[NUM480].toInt()};
    }

private:
    static DeclaranteListado leerDanado(const Registro &registro)
    {
        using enum RegDanado::Campo;
        DeclaranteListado fila;
        fila.csco = registro[CSCO].toInt();
        fila.dni = registro[DNI].toString();
        fila.nombre = registro[NOMBRE].toString();
        fila.nommun = msj(Msj::RegistroDanado);
        fila.danado = true;
        if (fila.dni.isEmpty() && fila.nombre.isEmpty())
            fila.nombre = nombreDanado(registro);
        return fila;
    }

    QHash<int, QString> m_provincias;
    QSet<QString> m_municipios;
};

struct ConClave
{
    QString clave;
    const DeclaranteListado *fila;

    friend bool operator<(const ConClave &una, const ConClave &otra)
    {
        const int orden = una.clave.compare(otra.clave);
        return orden < 0 || (orden == 0 && una.fila->dni < otra.fila->dni);
    }
};

} // namespace

QList<DeclaranteListado> cDecLista::CargarDeclarantes()
{
    QList<DeclaranteListado> lista;
    Lector lector;
    servicioDeclarante()->RecorrerLista([&](const Registro &registro) {
        lista.append(lector.leer(registro));
        return true;
    });
    Ordenar(lista);
    m_numdeclasel = static_cast<qint32>(lista.size());
    return lista;
}

QString cDecLista::clave(const DeclaranteListado &fila) const
{
    return m_orden == PorNombre ? claveOrden(fila.nombre) : fila.dni;
}

void cDecLista::Ordenar(QList<DeclaranteListado> &lista) const
{
    std::vector<ConClave> claves;
    claves.reserve(static_cast<size_t>(lista.size()));
    auto *filas = lista.data();
    for (qsizetype i = 0; i < lista.size(); ++i)
        claves.push_back({clave(filas[i]), filas + i});
    std::ranges::sort(claves, std::less<ConClave>());
    QList<DeclaranteListado> ordenada;
    ordenada.reserve(lista.size());
    for (const auto &clave : claves)
        ordenada.append(std::move(filas[clave.fila - filas]));
    lista = std::move(ordenada);
}

void cDecLista::Colocar(QList<DeclaranteListado> &lista, DeclaranteListado fila) const
{
    const ConClave nueva{clave(fila), &fila};
    const auto lugar = std::ranges::lower_bound(lista, nueva, std::less<ConClave>(),
                                                [this](const DeclaranteListado &otra) {
                                                    return ConClave{clave(otra), &otra};
                                                });
    lista.insert(lugar, std::move(fila));
}

std::optional<DeclaranteListado> cDecLista::CargarDeclarante(qint32 csco)
{
    Registro registro;
    try {
        servicioDeclarante()->CargarListado(csco, registro);
    } catch (const ErrorDatos &error) {
        if (error.fallo() != Fallo::SinDeclarante)
            throw;
        return {};
    }
    return Lector().leer(registro);
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
