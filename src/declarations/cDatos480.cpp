#include "declarations/cDatos480.h"

#include "core/Redondeo.h"
#include "core/Servicios.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "declarations/Cabecera.h"

#include <algorithm>

using namespace Casilla480;

/// The boxes that follow the class boxes in the service's record; rates (74, 77) go apart.
static constexpr int CasillasFinales[]
    = {C70_TOT, C73_BA1, C76_BA2, C79_BA3, C74_TI1, C77_TI2, C75_CU1, C78_CU2, C80_CU3, C81_RES};

void cDatos480::MODO(const QString &modo)
{
    if (modo == Modo::Alta) {
        Registro tipos;
        CalcularTipoAnual(tipos);
        Figuras nuevas;
        nuevas.tipo1 = redondearTipo(tipos.value(0).toFloat());
        nuevas.tipo2 = tipos.size() == 2 ? redondearTipo(tipos.value(1).toFloat()) : 0;
        nuevas.modificado = true;
        m = nuevas;
    }
    m_modo = modo;
}

void cDatos480::casilla(int numero, double centimos)
{
    en(numero) = redondear(centimos, 0);
}

void cDatos480::C74_TI1(float tipo)
{
    m.tipo1 = redondearTipo(tipo);
}

void cDatos480::C77_TI2(float tipo)
{
    m.tipo2 = redondearTipo(tipo);
}

void cDatos480::CargarDeclaracion(qint32 codigo)
{
    Registro r;
    servicioDeclaracion()->Cargar480(codigo, r);
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (int columna = 0; columna < 2; ++columna)
            en(Reg480::casilla(clase, columna))
                = r.value(Reg480::posicion(clase, columna)).toDouble();
    for (int i = 0; const int numero : CasillasFinales)
        en(numero) = r.value(Reg480::C70_TOT + i++).toDouble();
    m.tipo1 = r.value(Reg480::C74_TI1).toFloat();
    m.tipo2 = r.value(Reg480::C77_TI2).toFloat();
    casilla(C71_TOT, CalcularC71());
}

qint16 cDatos480::ValidarDatos480(const Registro &datos) const
{
    return servicio::crear<SvrOstr::cDeclaracion>()->ValidarDatos480(datos);
}

qint32 cDatos480::GuardarDeclaracion(const Registro &datos) const
{
    return servicioDeclaracion()->Guardar480(datos);
}

double cDatos480::sumaColumna(int columna) const
{
    double suma = 0;
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        suma += casilla(Reg480::casilla(clase, columna));
    return suma;
}

double cDatos480::CalcularC71() const
{
    return sumaColumna(1);
}

void cDatos480::CalcularValores()
{
    casilla(C70_TOT, sumaColumna(0));
    casilla(C71_TOT, CalcularC71());
    casilla(C75_CU1, calcularCuota(m.tipo1, casilla(C73_BA1)));
    casilla(C78_CU2, calcularCuota(m.tipo2, casilla(C76_BA2)));
    casilla(C81_RES, casilla(C78_CU2) + casilla(C75_CU1) + casilla(C80_CU3));
}

void cDatos480::CalcularTipoAnual(Registro &tipos) const
{
    servicioLectura()->ObtenerTipoAnual(tipos, unico::la<cDecResumen>().EJERCICIO());
}

bool cDatos480::NumDecl430(Filas &lista) const
{
    const auto &cabecera = unico::la<cDecResumen>();
    return servicioDeclarante()->ObtListDecl430(lista, cabecera.EJERCICIO(), cabecera.CSCO());
}

double cDatos480::DiferenciaBases() const
{
    return casilla(C70_TOT) - casilla(C73_BA1) - casilla(C76_BA2);
}

bool cDatos480::cabe() const
{
    static constexpr int calculadas[] = {C70_TOT, C71_TOT, C75_CU1, C78_CU2, C81_RES};
    return std::ranges::all_of(calculadas, [this](int n) { return cabeEnCasilla(casilla(n)); });
}

Registro cDatos480::RegistroValidar() const
{
    return {casilla(C70_TOT), casilla(C73_BA1), casilla(C76_BA2), casilla(C79_BA3),
            casilla(C71_TOT)};
}

Registro cDatos480::RegistroGuardar() const
{
    Registro figuras(Reg480::Total);
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (int columna = 0; columna < 2; ++columna)
            figuras[Reg480::posicion(clase, columna)] = casilla(Reg480::casilla(clase, columna));
    for (int i = 0; const int numero : CasillasFinales)
        figuras[Reg480::C70_TOT + i++] = casilla(numero);
    figuras[Reg480::C74_TI1] = m.tipo1;
    figuras[Reg480::C77_TI2] = m.tipo2;
    return cabeceraGuardar(m.csde) + figuras;
}
