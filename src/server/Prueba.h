#pragma once

#include <SQLiteCpp/Database.h>
#include <array>
#include <string>

namespace servidor {

/// A table whose rows carry, in their column PRUEBA, a check value over all their other columns:
/// SQLite looks after its structure, and would hand out a flipped bit of the content as a figure.
///
/// The value is that of the SQL function `prueba` over the table's name and its columns in a fixed
/// order, key included; what triggers change by themselves (`cuentas`) is added to it, so that they
/// can carry the value along without the row being looked at: one that is wrong stays wrong.
struct TablaProbada
{
    std::string nombre;
    std::string columnas; ///< names, separated by ", "; the key first
    std::string cuentas; ///< SQL of what is added, " + 1000003 * NUM430"

    /// SQL of the value of a row as it is stored, its columns called `columnas`.
    std::string valor() const { return de(columnas) + cuentas; }
    /// SQL of the value, without what is added, of parameters ?1, ?2… that stand for the columns.
    std::string valorParametros() const { return de(parametros()); }
    /// "?1, ?2…", one for each column.
    std::string parametros() const;
    /// SQL, 1 for a row that is as it was written.
    std::string bien() const { return "PRUEBA = " + valor(); }

private:
    std::string de(const std::string &valores) const;
};

/// Factors of the counters of a declarant. They stand in the triggers of every database.
inline constexpr int Factor430 = 1'000'003;
inline constexpr int Factor480 = 1'000'033;
inline constexpr int FactorReciente = 1'000'037;

const TablaProbada &probadaDeclarantes();
const TablaProbada &probadaDeclaraciones();
const TablaProbada &probadaAjustes();
/// All of them; the figures of both models last.
const std::array<const TablaProbada *, 5> &tablasProbadas();

/// Makes known on a connection the function `prueba`, and `suma`, which adds whole numbers up and
/// drops what no longer fits.
void registrarPrueba(SQLite::Database &base);

} // namespace servidor
