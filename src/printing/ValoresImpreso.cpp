#include "printing/ValoresImpreso.h"

#include "core/Importe.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "dataservice/SvrKtComunLib.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/cImOf.h"

using namespace Qt::StringLiterals;

namespace impreso {
namespace {

/// What `texto` gives in Basque and in Castilian.
template <class Texto> QString enDosIdiomas(Texto texto)
{
    const QString euskera = texto(Idioma::Euskera);
    const QString castellano = texto(Idioma::Castellano);
    return euskera == castellano ? castellano : euskera + u" / "_s + castellano;
}

QString unir(const QStringList &partes)
{
    QStringList llenas = partes;
    llenas.removeAll(QString());
    return llenas.join(u' ');
}

QString nombreMunicipio(const cDecDatos &d)
{
    if (!d.enProvinciaPropia())
        return d.NOMMUN();
    QString nombre;
    servicioLectura()->ObtenerNombreMunicipio(d.CODMUN(), nombre);
    return nombre.isEmpty() ? d.NOMMUN() : nombre;
}

QString nombreProvincia(const cDecDatos &d)
{
    if (!d.enProvinciaPropia())
        return d.NOMPROV();
    QString nombre;
    servicioLectura()->ObtenerNombreProvincia(d.CODPROV(), nombre, desplazamientoIdioma());
    return nombre.isEmpty() ? d.NOMPROV() : nombre;
}

ValoresImpreso comunes()
{
    const auto &d = unico::la<cDecDatos>();
    const qint32 fecha = unico::la<cImOf>().FECHAPRE();
    ValoresImpreso v;
    v.textos = {
        {Valor::Nif, d.DNI()},
        {Valor::Nombre, d.NOMBRE()},
        {Valor::Telefono, d.TELEFONO()},
        {Valor::Domicilio, unir({d.VIA(), d.DOMICILIO()})},
        {Valor::Numero,
         unir({d.NUMERO() == 0 ? QString() : QString::number(d.NUMERO()), d.LETRA()})},
        {Valor::Piso,
         unir(
             {d.ESCALERA().isEmpty() ? QString() : u"ESC. "_s + d.ESCALERA(), d.PISO(), d.MANO()})},
        {Valor::Municipio, nombreMunicipio(d)},
        {Valor::CodigoPostal, d.CODPOS()},
        {Valor::Provincia, nombreProvincia(d)},
        {Valor::Ejercicio, QString::number(unico::la<cDecResumen>().EJERCICIO())},
        {Valor::Fecha, fecha == 0 ? QString() : unico::la<cFecha>().LongToString(fecha)},
    };
    return v;
}

} // namespace

ValoresImpreso tomarValores430(const cDatos430 &figuras)
{
    ValoresImpreso v = comunes();
    const int mes = unico::la<cDecResumen>().PERIODO();
    v.textos[Valor::Periodo]
        = enDosIdiomas([mes](Idioma idioma) { return nombreMes(mes, idioma); });
    v.textos[Valor::Importe] = textoImporte(figuras.CUOTATOT());
    v.casilla(1) = textoImporte(figuras.BASETOT());
    v.casilla(2) = textoTipo(figuras.TIPOTOT());
    v.casilla(3) = textoImporte(figuras.CUOTATOT());
    return v;
}

ValoresImpreso tomarValores480(const cDatos480 &figuras)
{
    ValoresImpreso v = comunes();
    v.textos[Valor::Periodo] = enDosIdiomas(
        [](Idioma idioma) { return palabraPeriodicidad(PeriodicidadAnual, idioma); });
    using enum Casilla480;
    const auto poner = [&](Casilla480 cual) {
        v.casilla(static_cast<int>(cual)) = textoImporte(figuras.casilla(cual));
    };
    // the third box of a row, held nowhere, is the sum of the other two
    const auto ponerFila = [&](Casilla480 noExenta, Casilla480 exenta) {
        poner(noExenta);
        poner(exenta);
        v.casilla(static_cast<int>(exenta) + 1)
            = textoImporte(figuras.casilla(noExenta) + figuras.casilla(exenta));
    };
    for (const Clase480 &clase : Clases480)
        ponerFila(clase.noExenta, clase.exenta);
    ponerFila(C70_TOT, C71_TOT);
    for (const Casilla480 cual : {C73_BA1, C75_CU1, C76_BA2, C78_CU2, C79_BA3, C80_CU3, C81_RES})
        poner(cual);
    v.casilla(74) = textoTipo(figuras.C74_TI1());
    v.casilla(77) = textoTipo(figuras.C77_TI2());
    return v;
}

void tomarHacienda(ValoresImpreso &impreso, SvrKtComunLib::cMiscelaneos &servicio)
{
    constexpr qint16 DosIdiomas = 1000;
    const auto restaurar = qScopeGuard([&servicio] { servicio.Idioma(0); });
    servicio.Idioma(DosIdiomas);
    const QString titular = servicio.HaciendaFiscalidad();
    impreso.haciendaEuskera = titular.section(u'\n', 0, 0);
    impreso.haciendaCastellano = titular.section(u'\n', 1, 1);
}

} // namespace impreso
