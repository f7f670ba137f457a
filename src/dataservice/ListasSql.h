#pragma once

#include <QStringView>

/// The queries of the pick lists, part of the contract: [0] Castilian, [1] Basque.
namespace ListasSql {
inline constexpr QStringView Vias[] = {
    u"Select T07_CODIGO, T07_CAS From T07_SIGLASVIA ORDER BY T07_CAS",
    u"Select T07_CODIGO, T07_EUS From T07_SIGLASVIA ORDER BY T07_EUS",
};
inline constexpr QStringView Provincias[] = {
    u"Select T05_PRO_ID, T05_PRO_CAS From T05_PROVINCIAS ORDER BY T05_PRO_CAS",
    u"Select T05_PRO_ID, T05_PRO_EUS From T05_PROVINCIAS ORDER BY T05_PRO_EUS",
};
inline constexpr QStringView Municipios[] = {
    u"Select T06_CODMUN, T06_NOMMUN From T06_MUNICIPIOS ORDER BY T06_NOMMUN",
    u"Select T06_CODMUN, T06_NOMMUN From T06_MUNICIPIOS ORDER BY T06_NOMMUN",
};
} // namespace ListasSql
