#pragma once

#include "dataservice/Registros.h"

#include <QObject>
#include <QString>

#include <Msj.h>
#include <array>
#include <optional>

namespace casillas480 {
Q_NAMESPACE

/// The amount boxes of a model 480 by their names and numbers on the form. Boxes 03, 06 … 69 and 72
/// are row totals of the printed form only, 74 and 77 are rates.
enum class Casilla480 {
    C01_VIDA = 1,
    C02_VIDA,
    C04_ACC = 4,
    C05_ACC,
    C07_ENF = 7,
    C08_ENF,
    C10_TERR = 10,
    C11_TERR,
    C13_FERR = 13,
    C14_FERR,
    C16_AER = 16,
    C17_AER,
    C19_MAR = 19,
    C20_MAR,
    C22_MER = 22,
    C23_MER,
    C25_INC = 25,
    C26_INC,
    C28_AGR = 28,
    C29_AGR,
    C31_OTR = 31,
    C32_OTR,
    C34_OBL = 34,
    C35_OBL,
    C37_VOL = 37,
    C38_VOL,
    C40_RCA = 40,
    C41_RCA,
    C43_RCM = 43,
    C44_RCM,
    C46_NUC = 46,
    C47_NUC,
    C49_OTR = 49,
    C50_OTR,
    C52_CRE = 52,
    C53_CRE,
    C55_CAU = 55,
    C56_CAU,
    C58_PPE = 58,
    C59_PPE,
    C61_DJU = 61,
    C62_DJU,
    C64_ASI = 64,
    C65_ASI,
    C67_DEC = 67,
    C68_DEC,
    C70_TOT = 70,
    C71_TOT,
    C73_BA1 = 73,
    C75_CU1 = 75,
    C76_BA2,
    C78_CU2 = 78,
    C79_BA3,
    C80_CU3,
    C81_RES,
};
Q_ENUM_NS(Casilla480)

} // namespace casillas480

using casillas480::Casilla480;

/// The 23 classes of insurance of model 480: the one table that the record, the entry pages, the
/// command line and the printed form read.
struct Clase480
{
    Casilla480 noExenta, exenta; ///< its boxes
    Msj etiqueta; ///< label, or the second line of it under a heading
    std::optional<Msj> grupo = {}; ///< heading shared with the neighbouring row

    constexpr Casilla480 casilla(int columna) const { return columna == 0 ? noExenta : exenta; }
};

inline constexpr std::array<Clase480, Reg480::Clases> Clases480 = [] {
    using enum Casilla480;
    return std::to_array<Clase480>({
        {C01_VIDA, C02_VIDA, Msj::RamoVida},
        {C04_ACC, C05_ACC, Msj::RamoAccidentes},
        {C07_ENF, C08_ENF, Msj::RamoEnfermedad},
        {C10_TERR, C11_TERR, Msj::RamoVehiculosTerrestres},
        {C13_FERR, C14_FERR, Msj::RamoVehiculosFerroviarios},
        {C16_AER, C17_AER, Msj::RamoVehiculosAereos},
        {C19_MAR, C20_MAR, Msj::RamoVehiculosMaritimos},
        {C22_MER, C23_MER, Msj::RamoMercancias},
        {C25_INC, C26_INC, Msj::RamoIncendios},
        {C28_AGR, C29_AGR, Msj::RamoAgrarios},
        {C31_OTR, C32_OTR, Msj::RamoOtrosDanos},
        {C34_OBL, C35_OBL, Msj::RamoObligatorio, Msj::GrupoRespCivilTerrestres},
        {C37_VOL, C38_VOL, Msj::RamoVoluntario, Msj::GrupoRespCivilTerrestres},
        {C40_RCA, C41_RCA, Msj::RamoRespCivilAereos},
        {C43_RCM, C44_RCM, Msj::RamoRespCivilMaritimos},
        {C46_NUC, C47_NUC, Msj::RamoNucleares, Msj::GrupoRespCivilGeneral},
        {C49_OTR, C50_OTR, Msj::RamoOtros, Msj::GrupoRespCivilGeneral},
        {C52_CRE, C53_CRE, Msj::RamoCredito},
        {C55_CAU, C56_CAU, Msj::RamoCaucion},
        {C58_PPE, C59_PPE, Msj::RamoPerdidas},
        {C61_DJU, C62_DJU, Msj::RamoDefensaJuridica},
        {C64_ASI, C65_ASI, Msj::RamoAsistencia},
        {C67_DEC, C68_DEC, Msj::RamoDecesos},
    });
}();

constexpr const Clase480 &clase480(int clase)
{
    return Clases480[static_cast<size_t>(clase)];
}

// the form numbers the boxes of the table row by row, the third of each row being its total
static_assert([] {
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (int columna = 0; columna < 2; ++columna)
            if (static_cast<int>(clase480(clase).casilla(columna))
                != Reg480::casilla(clase, columna))
                return false;
    return true;
}());

/// Whether a class is entered on the first page, not on the second.
constexpr bool enPrimeraPagina(int clase)
{
    return clase < Reg480::ClasesPagina1;
}

/// Number of a box on the form, "01" to "81", and name of its entry box, "txt01vida".
QString numeroCasilla(Casilla480 casilla);
QString controlCasilla(Casilla480 casilla);

/// Whether a box is filled in; the others are computed.
constexpr bool seRellena(Casilla480 casilla)
{
    using enum Casilla480;
    return casilla < C70_TOT || casilla == C73_BA1 || casilla == C76_BA2 || casilla == C79_BA3
        || casilla == C80_CU3;
}

/// The highest number on the form, row totals and rates included.
inline constexpr int UltimaCasilla480 = static_cast<int>(Casilla480::C81_RES);
/// The box that is filled in under a number of the form; nothing where it is computed.
std::optional<Casilla480> casillaEntrada(int numero);
