#include "core/Periodos.h"

#include "core/Textos.h"

using namespace Qt::StringLiterals;

static constexpr QStringView Meses[12][2] = {
    {u"ENERO", u"URTARRILA"}, {u"FEBRERO", u"OTSAILA"},  {u"MARZO", u"MARTXOA"},
    {u"ABRIL", u"APIRILA"},   {u"MAYO", u"MAIATZA"},     {u"JUNIO", u"EKAINA"},
    {u"JULIO", u"UZTAILA"},   {u"AGOSTO", u"ABUZTUA"},   {u"SEPTIEMBRE", u"IRAILA"},
    {u"OCTUBRE", u"URRIA"},   {u"NOVIEMBRE", u"AZAROA"}, {u"DICIEMBRE", u"ABENDUA"},
};

QString nombreMes(int mes)
{
    if (mes < 1 || mes > 12)
        return {};
    return elegir(Meses[mes - 1][0].toString(), Meses[mes - 1][1].toString());
}

QString palabraPeriodicidad(int periodicidad)
{
    return periodicidad == PeriodicidadAnual ? elegir(u"ANUAL"_s, u"URTEKOA"_s) : QString();
}

QString textoPeriodo(int periodicidad, int periodo)
{
    return periodicidad == PeriodicidadAnual ? palabraPeriodicidad(periodicidad)
                                             : nombreMes(periodo);
}
