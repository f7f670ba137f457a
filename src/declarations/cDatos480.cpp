#include "declarations/cDatos480.h"

#include "core/Importe.h"
#include "core/Servicios.h"
#include "core/Unico.h"
#include "declarations/RegistroDeclaracion.h"

#include <algorithm>

using enum Casilla480;

/// Where the boxes that follow the class boxes stand in the service's record.
static constexpr std::pair<Reg480::Campo, Casilla480> CasillasFinales[] = {
    {Reg480::C70_TOT, C70_TOT}, {Reg480::C73_BA1, C73_BA1}, {Reg480::C76_BA2, C76_BA2},
    {Reg480::C79_BA3, C79_BA3}, {Reg480::C75_CU1, C75_CU1}, {Reg480::C78_CU2, C78_CU2},
    {Reg480::C80_CU3, C80_CU3}, {Reg480::C81_RES, C81_RES},
};

/// Calls `accion` with every box of the service's record and its place there.
template <class Accion> static void paraCadaCasilla(Accion accion)
{
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        for (int columna = 0; columna < 2; ++columna)
            accion(Reg480::posicion(clase, columna), clase480(clase).casilla(columna));
    for (const auto &[posicion, casilla] : CasillasFinales)
        accion(posicion, casilla);
}

void cDatos480::MODO(const QString &modo)
{
    if (modo == Modo::Alta) {
        Registro tipos;
        CalcularTipoAnual(tipos);
        Nueva(tipos);
    }
    m_modo = modo;
}

void cDatos480::Nueva(const Registro &tipos)
{
    Figuras nuevas;
    nuevas.tipo1 = redondearTipo(tipos.value(0).toFloat());
    nuevas.tipo2 = tipos.size() == 2 ? redondearTipo(tipos.value(1).toFloat()) : 0;
    m = m_inicial = nuevas;
    m_cargado.olvidar();
    m_csde = 0;
    m_modificado = true;
    m_modo = Modo::Alta;
}

void cDatos480::casilla(Casilla480 cual, double centimos)
{
    en(cual) = redondear(centimos, 0);
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
    const QByteArray huella = servicioDeclaracion()->Huella(codigo);
    const auto r = cargarDeclaracion(codigo, &SvrOstr::cDeclaracion::Cargar480);
    paraCadaCasilla(
        [&](int posicion, Casilla480 casilla) { en(casilla) = r.value(posicion).toDouble(); });
    m.tipo1 = r.value(Reg480::C74_TI1).toFloat();
    m.tipo2 = r.value(Reg480::C77_TI2).toFloat();
    casilla(C71_TOT, CalcularC71());
    m_inicial = m;
    m_cargado.tomar(huella);
}

qint16 cDatos480::ValidarDatos480(const Registro &datos) const
{
    return servicio::crear<SvrOstr::cDeclaracion>()->ValidarDatos480(datos);
}

void cDatos480::TomarGuardado(qint32 csde)
{
    m_modo = Modo::Consulta;
    CSDE(csde);
    m_modificado = false;
    m_inicial = m;
    m_cargado.olvidar();
}

EstadoCarga cDatos480::CambioDesdeCarga() const
{
    return m_cargado.comparar(servicioDeclaracion()->Huella(CSDE()));
}

qint32 cDatos480::GuardarDeclaracion(const Registro &datos) const
{
    return servicioDeclaracion()->Guardar480(datos);
}

double cDatos480::sumaColumna(int columna) const
{
    double suma = 0;
    for (const Clase480 &clase : Clases480)
        suma += casilla(clase.casilla(columna));
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

std::optional<Mensuales430> cDatos480::CargarMensuales() const
{
    Filas lista;
    if (!NumDecl430(lista))
        return {};
    Mensuales430 anno;
    for (const QVariant &entrada : std::as_const(lista)) {
        const auto fila = entrada.toList();
        const int mes = fila.value(Fila430::PERIODO).toInt();
        if (mes < 1 || mes > 12)
            continue;
        qint32 csde = fila.value(Fila430::CSDE).toInt();
        Registro figuras;
        servicioDeclaracion()->Cargar430(csde, figuras);
        const Mensuales430::Mes datos{
            figuras.value(Reg430::BASETOT).toDouble(), figuras.value(Reg430::CUOTATOT).toDouble(),
            figuras.value(Reg430::BASELIQ).toDouble(), figuras.value(Reg430::TIPOLIQ).toFloat(),
            figuras.value(Reg430::BASEREC).toDouble(), figuras.value(Reg430::CUOTAREC).toDouble()};
        anno.meses.at(static_cast<size_t>(mes - 1)) = datos;
        anno.base += datos.base;
        anno.cuota += datos.cuota;
    }
    return anno;
}

BandasMensuales cDatos480::Bandas(const Mensuales430 &anno) const
{
    BandasMensuales bandas;
    for (int mes = 1; const auto &datos : anno.meses) {
        if (datos) {
            if (datos->tipo == m.tipo1)
                bandas.base1 += datos->baseLiquidada;
            else if (datos->tipo == m.tipo2)
                bandas.base2 += datos->baseLiquidada;
            else
                bandas.deOtroTipo.append(mes);
            bandas.baseRectificada += datos->baseRectificada;
            bandas.cuotaRectificada += datos->cuotaRectificada;
        }
        ++mes;
    }
    return bandas;
}

double cDatos480::DiferenciaBases() const
{
    return casilla(C70_TOT) - casilla(C73_BA1) - casilla(C76_BA2);
}

bool cDatos480::cabe() const
{
    static constexpr Casilla480 calculadas[] = {C70_TOT, C71_TOT, C75_CU1, C78_CU2, C81_RES};
    return std::ranges::all_of(calculadas,
                               [this](Casilla480 cual) { return cabeEnCasilla(casilla(cual)); });
}

Registro cDatos480::RegistroValidar() const
{
    return {casilla(C70_TOT), casilla(C73_BA1), casilla(C76_BA2), casilla(C79_BA3),
            casilla(C71_TOT)};
}

Registro cDatos480::RegistroGuardar() const
{
    Registro figuras(Reg480::Total);
    paraCadaCasilla([&](int posicion, Casilla480 cual) { figuras[posicion] = casilla(cual); });
    figuras[Reg480::C74_TI1] = m.tipo1;
    figuras[Reg480::C77_TI2] = m.tipo2;
    return cabeceraGuardar(m_csde) + figuras;
}
