#pragma once

#include "dataservice/Registros.h"

#include <QString>

#include <Msj.h>
#include <array>
#include <optional>

/// The 23 classes of insurance of model 480: the one table that the record, the entry pages, the
/// command line and the printed form read. The row's index is its class number less 1.
struct Clase480
{
    QStringView sufijo; ///< "VIDA" in C01_VIDA and C02_VIDA
    Msj etiqueta; ///< label, or the second line of it under a heading
    std::optional<Msj> grupo; ///< heading shared with the neighbouring row
};

inline constexpr std::array<Clase480, Reg480::Clases> Clases480 = {{
    {u"VIDA", Msj::RamoVida, {}},
    {u"ACC", Msj::RamoAccidentes, {}},
    {u"ENF", Msj::RamoEnfermedad, {}},
    {u"TERR", Msj::RamoVehiculosTerrestres, {}},
    {u"FERR", Msj::RamoVehiculosFerroviarios, {}},
    {u"AER", Msj::RamoVehiculosAereos, {}},
    {u"MAR", Msj::RamoVehiculosMaritimos, {}},
    {u"MER", Msj::RamoMercancias, {}},
    {u"INC", Msj::RamoIncendios, {}},
    {u"AGR", Msj::RamoAgrarios, {}},
    {u"OTR", Msj::RamoOtrosDanos, {}},
    {u"OBL", Msj::RamoObligatorio, Msj::GrupoRespCivilTerrestres},
    {u"VOL", Msj::RamoVoluntario, Msj::GrupoRespCivilTerrestres},
    {u"RCA", Msj::RamoRespCivilAereos, {}},
    {u"RCM", Msj::RamoRespCivilMaritimos, {}},
    {u"NUC", Msj::RamoNucleares, Msj::GrupoRespCivilGeneral},
    {u"OTR", Msj::RamoOtros, Msj::GrupoRespCivilGeneral},
    {u"CRE", Msj::RamoCredito, {}},
    {u"CAU", Msj::RamoCaucion, {}},
    {u"PPE", Msj::RamoPerdidas, {}},
    {u"DJU", Msj::RamoDefensaJuridica, {}},
    {u"ASI", Msj::RamoAsistencia, {}},
    {u"DEC", Msj::RamoDecesos, {}},
}};

/// Page (1 or 2) on which a class is entered.
constexpr int paginaClase(int clase)
{
    return clase < Reg480::ClasesPagina1 ? 1 : 2;
}

/// Name of a class box's property, "C01_VIDA", and of its entry box, "txt01vida".
QString propiedadClase(int clase, int columna);
QString controlClase(int clase, int columna);

/// Numbers of the boxes that are not class boxes.
namespace Casilla480 {
enum Numero {
    C70_TOT = 70,
    C71_TOT = 71,
    C73_BA1 = 73,
    C74_TI1 = 74,
    C75_CU1 = 75,
    C76_BA2 = 76,
    C77_TI2 = 77,
    C78_CU2 = 78,
    C79_BA3 = 79,
    C80_CU3 = 80,
    C81_RES = 81,
    Ultima = C81_RES
};
}

/// What may be done with a box number.
enum class UsoCasilla { Desconocida, Entrada, Calculada };
UsoCasilla usoCasilla(int numero);
