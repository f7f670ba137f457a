#pragma once

#include "dataservice/Codigos.h"

#include <QStringList>
#include <QVariantList>

#include <array>

/// Element order of the records and list rows that travel between the client and the data service.
/// Amounts are whole cents (double), rates percent (float), codes and texts as their names say.

using Registro = QVariantList; ///< one record: its fields in the order of one of the enums below
using Filas = QVariantList; ///< a list: each element is itself a QVariantList, one row

/// Full declarant record: 17 elements.
namespace RegDeclarante {
enum Campo {
    CSCO,
    DNI,
    NOMBRE,
    VIA,
    DOMICILIO,
    NUMERO,
    LETRA,
    ESCALERA,
    PISO,
    MANO,
    CODPROV,
    CODPOS,
    CODMUN,
    NOMMUN,
    TELEFONO,
    NUM430,
    NUM480,
    Total
};
}

/// What stands in the place of a RegDeclarante, or of a row of declarants, whose stored data do not
/// match their check value: its key, and what is sure of the rest (else empty).
namespace RegDanado {
enum Campo { CSCO, DNI, NOMBRE, Total };
}
inline bool esDanado(const Registro &registro)
{
    return registro.size() == RegDanado::Total;
}
/// "DNI - NAME", or what is sure of it, or "#17", the key.
inline QString nombreDanado(const Registro &registro)
{
    QStringList sabido{registro.value(RegDanado::DNI).toString(),
                       registro.value(RegDanado::NOMBRE).toString()};
    sabido.removeAll(QString());
    return sabido.isEmpty() ? QStringLiteral("#%1").arg(registro.value(RegDanado::CSCO).toInt())
                            : sabido.join(QStringLiteral(" - "));
}
/// A return of which it is not even sure whose it is, by its key: "430/480 #17".
inline QString nombreDeclaracionDanada(qint32 CSDE)
{
    return QStringLiteral("430/480 #%1").arg(CSDE);
}

/// Validation record of a declarant: 8 texts.
namespace RegValidacion {
enum Campo { DNI, NOMBRE, DOMICILIO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO, Total };
}

/// What a set of declarants does with one whose DNI is stored already, be it from before or from
/// the same set.
enum class Existentes {
    Detenerse, ///< the set ends before it, so that the user can be asked
    Sustituir,
    Conservar,
    Examinar, ///< nothing at all is stored
};

/// Row of the declarant list. NUM430 and NUM480 count the returns really stored.
namespace FilaDeclarante {
enum Columna { CSCO, DNI, NOMBRE, NOMMUN, NOMPROV, NUM430, NUM480, Total };
}

/// Row of the recent declarants.
namespace FilaReciente {
enum Columna { CSCO, DNI, NOMBRE, Total };
}

/// Row of a declarant's returns, in the order of the grid that shows them. IMPORTE in cents: the
/// total quota of a 430, the annual result of a 480; null when the return's data do not match their
/// check value. Then what is not sure of the header is 0 and empty.
namespace FilaDeclaracion {
enum Columna { CSDE, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE, Total };
}

/// How a declarant stands with one return: CSDE is 0 and IMPORTE nothing while it is not stored;
/// null as in FilaDeclaracion. A RegDanado for a declarant whose own data do not match. PRIMERO is
/// the first month with a 430, counted exercise * 12 + month - 1 (0: none); CUANTOS the months with
/// one before the return asked for, its own December included for an annual one; ANTERIORES
/// (qint64) those of the last MesesVistos of them, bit 0 being the latest.
namespace FilaPendiente {
enum Columna { CSCO, DNI, NOMBRE, CSDE, IMPORTE, PRIMERO, CUANTOS, ANTERIORES, Total };
inline constexpr int MesesVistos = 60;
} // namespace FilaPendiente

/// A return looked for by its declarant's identifier, and what is stored of it: keys are 0 where
/// there is no such declarant or return, IMPORTE null when what is stored of either is damaged.
namespace RegBuscada {
enum Campo { DNI, EJERCICIO, PERIODO, MODELO, Total };
}
namespace FilaBuscada {
enum Columna { CSCO, CSDE, IMPORTE, Total };
}

/// The latest return: [0] the declarant's key, given by the caller; [1] to [5] filled by the
/// service.
namespace RegUltima {
enum Campo { CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, Total };
}

/// Bounds: EJERMIN, EJERMAX, PERMIN, PERMAX, in this order (year, year, period, period).
namespace RegLimites {
enum Campo { EJERMIN, EJERMAX, PERMIN, PERMAX, Total };
}

/// Header to check against the bounds; here the bounds go year, period, year, period. The first
/// seven are what EjerPerValidos takes, all nine what ValidarDatosComunes takes.
namespace RegCabecera {
enum Campo {
    EJERCICIO,
    PERIODICIDAD,
    PERIODO,
    EJERMIN,
    PERMIN,
    EJERMAX,
    PERMAX,
    TotalPeriodo,
    MODELO = TotalPeriodo,
    CSCO,
    Total
};
}

/// The seven header elements in front of the figures in Guardar430 and Guardar480.
namespace RegGuardar {
enum Campo { CSDE, CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, Figuras };
}

/// Figures of a 430: nine elements (Cargar430; Guardar430 after the header).
namespace Reg430 {
enum Campo {
    RECTIFICA,
    BASELIQ,
    TIPOLIQ,
    CUOTALIQ,
    BASEREC,
    CUOTAREC,
    BASETOT,
    TIPOTOT,
    CUOTATOT,
    Total
};
}

/// What ValidarDatos430 takes.
namespace RegValidar430 {
enum Campo { RECTIFICA, BASELIQ, BASEREC, CUOTAREC, Total };
}

/// Figures of a 480: 56 elements (Cargar480; Guardar480 after the header). The 46 class boxes come
/// first, page by page: column 1 of rows 1-11, column 2 of rows 1-11, then the same of rows 12-23.
namespace Reg480 {
inline constexpr int Clases = 23;
inline constexpr int ClasesPagina1 = 11;
enum Campo {
    C70_TOT = 2 * Clases,
    C73_BA1,
    C76_BA2,
    C79_BA3,
    C74_TI1,
    C77_TI2,
    C75_CU1,
    C78_CU2,
    C80_CU3,
    C81_RES,
    Total
};

/// Numbers on the official form of the boxes after the class boxes, in the record's order.
inline constexpr std::array Liquidacion{70, 73, 76, 79, 74, 77, 75, 78, 80, 81};
static_assert(C70_TOT + Liquidacion.size() == Total);

/// Position of a class box in the record: `clase` 0 to 22, `columna` 0 (not exempt) or 1 (exempt).
constexpr int posicion(int clase, int columna)
{
    return clase < ClasesPagina1
        ? columna * ClasesPagina1 + clase
        : 2 * ClasesPagina1 + columna * (Clases - ClasesPagina1) + clase - ClasesPagina1;
}

/// Number that the official form gives to a class box (01, 02, 04, 05, … 67, 68).
constexpr int casilla(int clase, int columna)
{
    return 1 + 3 * clase + columna;
}
} // namespace Reg480

/// What ValidarDatos480 takes.
namespace RegValidar480 {
enum Campo { C70_TOT, C73_BA1, C76_BA2, C79_BA3, C71_TOT, Total };
}

/// Row of the year's monthly 430 returns.
namespace Fila430 {
enum Columna { CSDE, PERIODO, Total };
}
