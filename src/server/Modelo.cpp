#include "server/Modelo.h"

#include "dataservice/Registros.h"

#include <utility>

namespace servidor {

namespace {

using Clase = Modelo::Clase;

std::vector<Modelo::Columna> columnas430()
{
    return {
        {"RECTIFICA", Clase::Marca},  {"BASELIQ", Clase::Importe}, {"TIPOLIQ", Clase::Tipo},
        {"CUOTALIQ", Clase::Importe}, {"BASEREC", Clase::Importe}, {"CUOTAREC", Clase::Importe},
        {"BASETOT", Clase::Importe},  {"TIPOTOT", Clase::Tipo},    {"CUOTATOT", Clase::Importe}};
}

std::string nombreCasilla(int casilla)
{
    return {'C', static_cast<char>('0' + casilla / 10), static_cast<char>('0' + casilla % 10)};
}

std::vector<Modelo::Columna> columnas480()
{
    std::vector<Modelo::Columna> columnas(Reg480::C70_TOT);
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (const int columna : {0, 1})
            columnas[static_cast<std::size_t>(Reg480::posicion(clase, columna))]
                = {nombreCasilla(Reg480::casilla(clase, columna)), Clase::Importe};
    for (const int casilla : Reg480::Liquidacion)
        columnas.push_back({nombreCasilla(casilla),
                            casilla == 74 || casilla == 77 ? Clase::Tipo : Clase::Importe});
    return columnas;
}

} // namespace

Modelo::Modelo(const QString &codigoModelo, qint32 periodicidadModelo, qsizetype figuraListada,
               std::vector<Columna> columnasModelo)
    : codigo(codigoModelo)
    , periodicidad(periodicidadModelo)
    , listado(figuraListada)
    , columnas(std::move(columnasModelo))
    , tabla("DATOS" + codigo.toStdString())
    , borrar("DELETE FROM " + tabla + " WHERE CSDE = ?")
{
    std::string nombres, definiciones, huecos;
    for (const Columna &columna : columnas) {
        nombres += (nombres.empty() ? "" : ", ") + columna.nombre;
        definiciones += ", " + columna.nombre
            + (columna.clase == Clase::Marca ? " TEXT NOT NULL" : " INTEGER NOT NULL");
        huecos += ", ?";
    }
    crear = "CREATE TABLE " + tabla + " (CSDE INTEGER PRIMARY KEY REFERENCES DECLARACIONES (CSDE)"
        + definiciones + ") STRICT;";
    guardar
        = "INSERT OR REPLACE INTO " + tabla + " (CSDE, " + nombres + ") VALUES (?" + huecos + ")";
    leer = "SELECT " + nombres + " FROM " + tabla + " WHERE CSDE = ?";
}

const Modelo &modelo430()
{
    static const Modelo modelo(Modelo430, PeriodicidadMensual, Reg430::CUOTATOT, columnas430());
    return modelo;
}

const Modelo &modelo480()
{
    static const Modelo modelo(Modelo480, PeriodicidadAnual, Reg480::C81_RES, columnas480());
    return modelo;
}

const Modelo *modeloDe(const QString &codigo)
{
    for (const Modelo *modelo : {&modelo430(), &modelo480()})
        if (modelo->codigo == codigo)
            return modelo;
    return nullptr;
}

} // namespace servidor
