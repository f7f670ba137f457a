#include "core/Periodos.h"

using namespace Qt::StringLiterals;

static constexpr QStringView Meses[UltimoMes][2] = {
    {u"ENERO", u"URTARRILA"}, {u"FEBRERO", u"OTSAILA"},  {u"MARZO", u"MARTXOA"},
    {u"ABRIL", u"APIRILA"},   {u"MAYO", u"MAIATZA"},     {u"JUNIO", u"EKAINA"},
    {u"JULIO", u"UZTAILA"},   {u"AGOSTO", u"ABUZTUA"},   {u"SEPTIEMBRE", u"IRAILA"},
    {u"OCTUBRE", u"URRIA"},   {u"NOVIEMBRE", u"AZAROA"}, {u"DICIEMBRE", u"ABENDUA"},
};

QString nombreMes(int mes, Idioma idioma)
{
    if (mes < 1 || mes > UltimoMes)
        return {};
    return elegir(Meses[mes - 1][0].toString(), Meses[mes - 1][1].toString(), idioma);
}

QString palabraPeriodicidad(int periodicidad, Idioma idioma)
{
    return periodicidad == PeriodicidadAnual ? elegir(u"ANUAL"_s, u"URTEKOA"_s, idioma) : QString();
}

QString textoPeriodo(int periodicidad, int periodo, Idioma idioma)
{
    return periodicidad == PeriodicidadAnual ? palabraPeriodicidad(periodicidad, idioma)
                                             : nombreMes(periodo, idioma);
}
