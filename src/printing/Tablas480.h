#pragma once

#include "declarations/Clases480.h"
#include "printing/Piezas.h"

#include <array>

namespace impreso {

/// Labels and places of the model 480 form. The class labels are those of Clases480.h.
namespace Impreso480 {

/// Tops of the sections, from the page's top.
namespace Seccion {
inline constexpr double Cabecera = 28;
inline constexpr double Declarante = 29;
inline constexpr double Postal = 55.2;
inline constexpr double Clases = 72.9;
inline constexpr double Liquidacion = 221;
} // namespace Seccion

inline constexpr Par Titulo{u"Urteko Aitorpen Laburpena", u"Declaración Resumen Anual"};
inline constexpr Caja CajaTitulo{10, 1, 48, 25.4};
inline constexpr Caja CajaTiempo{10, 27.2, 48, 16.7};
inline constexpr std::array<Campo, 2> Tiempo = {{
    {{u"Ekitaldia: /", u"Ejercicio:"}, {10, 27.2, 48, 8.35}, Valor::Ejercicio},
    {{u"Zergaldia: /", u"Período:"}, {10, 35.55, 48, 8.35}, Valor::Periodo},
}};

inline constexpr Caja CajaDeclarante{59.5, 0, 140.5, 25.4};
inline constexpr std::array<Campo, 9> Declarante = {{
    {{u"IFZ/", u"N.I.F."}, {59.5, 0.1, 27, 8.4}, Valor::Nif},
    {{u"Deiturak eta izena edo sozietatearen izena /", u"Apellidos y nombre o razón social"},
     {86.5, 0.1, 113.5, 8.4},
     Valor::Nombre},
    {{u"Zerga helbidea /", u"Domicilio fiscal"}, {59.5, 8.5, 62, 8.4}, Valor::Domicilio},
    {{u"Zenbakia /", u"Número"}, {121.5, 8.5, 22, 8.4}, Valor::Numero},
    {{u"Oina /", u"Piso"}, {143.5, 8.5, 26, 8.4}, Valor::Piso},
    {{u"Telefonoa /", u"Teléfono"}, {169.5, 8.5, 30.5, 8.4}, Valor::Telefono},
    {{u"Udalerria /", u"Municipio"}, {59.5, 16.9, 62, 8.4}, Valor::Municipio},
    {{u"Posta Kodea /", u"Cód. Postal"}, {121.5, 16.9, 27, 8.4}, Valor::CodigoPostal},
    {{u"Probintzia /", u"Provincia"}, {148.5, 16.9, 51.5, 8.4}, Valor::Provincia},
}};

inline constexpr Caja CajaPostal{59.5, 0, 140.5, 16.7};
inline constexpr std::array<Campo, 4> Postal = {{
    {{u"Sozietatearen deitura edo izena /", u"Denominación o Razón Social"},
     {59.5, 0, 140.5, 8.35}},
    {{u"Posta helbidea /", u"Dirección postal"}, {59.5, 8.35, 75, 8.35}},
    {{u"Herrialdea /", u"País"}, {134.5, 8.35, 33, 8.35}},
    {{u"Herrialdearen gakoa /", u"Clave País"}, {167.5, 8.35, 32.5, 8.35}},
}};

/// The three amount columns, shared by the class table and the liquidation.
inline constexpr double PrimeraColumna = 85;
inline constexpr double AnchoColumna = (MargenDerecho - PrimeraColumna) / 3;
constexpr double columna(int indice)
{
    return PrimeraColumna + indice * AnchoColumna;
}

/// Head of an amount column: two lines in each language.
struct Cabeza
{
    QStringView lineas[4];
};
inline constexpr std::array<Cabeza, 3> Cabezas = {{
    {{u"Oinarri ezargarri lotuak", u"eta ez salbuetsiak /", u"Bases Imponibles sujetas",
      u"y no exentas"}},
    {{u"Oinarri ezargarri", u"salbuetsiak /", u"Bases Imponibles", u"exentas"}},
    {{u"Oinarri ezargarriak", u"Guztira /", u"Total Bases", u"Imponibles"}},
}};

inline constexpr double AltoCabeza = 12.1;
inline constexpr double AltoFila = 5.6;
inline constexpr double AltoTotales = 6.2;
inline constexpr int FilaTotales = Reg480::Clases;
inline constexpr Caja CajaClases{10, 0, AnchoUtil,
                                 AltoCabeza + Reg480::Clases *AltoFila + AltoTotales};
inline constexpr double SangriaGrupo = 35.5; ///< of the labels below a heading
inline constexpr Par Totales{u"BATURA /", u"TOTALES"};

/// A row of the class table, 0 to 22, or the totals; and one of its three boxes.
constexpr Caja cajaFila(int fila)
{
    return {10, AltoCabeza + fila * AltoFila, AnchoUtil,
            fila == FilaTotales ? AltoTotales : AltoFila};
}
constexpr Caja cajaClase(int fila, int indice)
{
    const Caja caja = cajaFila(fila);
    return {columna(indice), caja.y, AnchoColumna, caja.alto};
}

inline constexpr double AltoCabezaLiquidacion = 5;
inline constexpr std::array<Par, 3> CabezasLiquidacion = {{
    {u"Oinarri ezargarria /", u"Base imponible"},
    {u"Tasa /", u"Tipo"},
    {u"Kuota /", u"Cuota"},
}};
inline constexpr Caja CajaLiquidacion{10, 0, AnchoUtil, 34};
inline constexpr double AltoBanda = 7;
inline constexpr Par Operaciones{u"Eragiketa lotuak eta ez salbuetsiak /",
                                 u"Operaciones sujetas y no exentas"};
inline constexpr Par Rectificacion{u"Aurreko ekitaldietako eragiketen zuzenketa /",
                                   u"Rectificación de"};
inline constexpr QStringView RectificacionSigue = u"operaciones de ejercicios anteriores";
inline constexpr Par Resultado{u"Urteko likidazioaren emaitza (75+78+80)/",
                               u"Resultado liquidación anual (75+78+80)"};

/// A box of the liquidation: its number, row and column.
struct CasillaLiquidacion
{
    int numero;
    int fila;
    int columna;
    bool esTipo = false;
};
inline constexpr std::array<CasillaLiquidacion, 9> CasillasLiquidacion = {{
    {73, 0, 0},
    {74, 0, 1, true},
    {75, 0, 2},
    {76, 1, 0},
    {77, 1, 1, true},
    {78, 1, 2},
    {79, 2, 0},
    {80, 2, 2},
    {81, 3, 2},
}};
inline constexpr int FilaResultado = 3;
constexpr Caja cajaBanda(int fila)
{
    return {10, AltoCabezaLiquidacion + fila * AltoBanda, AnchoUtil,
            fila == FilaResultado ? AltoBanda + 1 : AltoBanda};
}
constexpr Caja cajaCasilla(const CasillaLiquidacion &casilla)
{
    const Caja banda = cajaBanda(casilla.fila);
    return {columna(casilla.columna), banda.y, AnchoColumna, banda.alto};
}

inline constexpr Caja CajaFirma{10, 35, AnchoUtil, 31};
inline constexpr Campo Fecha{{u"Data /", u"Fecha:"}, {10, 35, 48, 9}, Valor::Fecha};
inline constexpr Par EtiquetaFirma{u"Entitatearen ordezkariaren sinadura /",
                                   u"Firma del representante de la Entidad"};
inline constexpr Caja CajaSinadura{59.5, 36, 139.5, 29};

} // namespace Impreso480

} // namespace impreso
