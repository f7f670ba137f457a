#pragma once

#include "server/Conexion.h"
#include "server/Prueba.h"
#include "server/Sentencia.h"

#include <QString>

#include <functional>
#include <string_view>

namespace servidor {

/// What is sure of a declarant whose row does not match its check value: what a second copy of it
/// (an index, the sort key of the name) bears out. The rest is empty.
struct DeclaranteSeguro
{
    QString dni, nombre;
};
DeclaranteSeguro declaranteSeguro(SQLite::Database &base, qint32 CSCO);

/// The same of a return's header; all 0 and empty when nothing is sure.
struct CabeceraSegura
{
    qint32 csco = 0, ejercicio = 0, periodo = 0;
    QString modelo;
};
CabeceraSegura cabeceraSegura(SQLite::Database &base, qint32 CSDE);
CabeceraSegura cabeceraSegura(const PConexion &conexion, qint32 CSDE);

/// What tells the user which one it is: "DNI - NAME", "DNI - NAME: 430 2026-03", and its key
/// ("#17") where nothing is sure.
QString nombreDeclarante(SQLite::Database &base, qint32 CSCO);
QString nombreDeclaracion(SQLite::Database &base, qint32 CSDE);

/// "430 2026-03", "480 2026".
QString nombreCabecera(const QString &modelo, qint32 ejercicio, qint32 periodo);

/// Throw ErrorDatos (Fallo::RegistroDanado) that names it.
[[noreturn]] void declaranteDanado(const PConexion &conexion, qint32 CSCO);
[[noreturn]] void declaracionDanada(const PConexion &conexion, qint32 CSDE);

/// Looks at every row of a model database of today's schema. Throws ErrorDatos: RegistroDanado
/// naming the declarants and returns that are not as they were written, Danada when the tables and
/// their indexes do not belong together, or are not ours (Esquemas.h).
void comprobarFilas(SQLite::Database &base, const QString &ruta);

/// The same of the index of DNIs alone; throws Danada.
void comprobarDnis(SQLite::Database &base, const QString &ruta);

/// Every row of a whole table (DECLARANTES or DECLARACIONES), as of one moment, by a SELECT over it
/// that has no condition; false when `visitar` ended it by returning false. Throws Danada when
/// there were not as many rows as its index has.
bool recorrerTodas(const PConexion &conexion, const TablaProbada &tabla, std::string_view sql,
                   const std::function<bool(const Sentencia &)> &visitar);

/// Throws Danada when the index of the returns leads to fewer, or more, than a declarant counts:
/// for a list of them, or before one is said not to exist.
void exigirCuenta(const PConexion &conexion, qint32 CSCO);
/// SQL of the same for a row of DECLARANTES called D: 1 when it holds.
std::string cuadran();

} // namespace servidor
