#pragma once

#include "printing/Piezas.h"

#include <array>

namespace impreso {

/// Labels and places of the model 430 form.
namespace Impreso430 {

/// Tops of the sections, from the page's top.
namespace Seccion {
inline constexpr double Cabecera = 32;
inline constexpr double Declarante = 38.22;
inline constexpr double ValoresDeclarante = 40.22;
inline constexpr double Postal = 100;
inline constexpr double Liquidacion = 150;
inline constexpr double Firma = 180;
inline constexpr double CartaPago = 225;
} // namespace Seccion

inline constexpr Par Titulo{u"Aitorpen - likidazioa /", u"Declaración - liquidación"};
inline constexpr Caja CajaTitulo{10, 0, AnchoUtil, 5.42};

inline constexpr Par EtiquetaNif{u"NA / IFZ", u"DNI / NIF"};
inline constexpr Par EtiquetaNombre{u"Deiturak eta izena edo enpresaren izena /",
                                    u"Apellidos y nombre o razón social"};
inline constexpr Par EtiquetaEjercicio{u"Ekitaldia", u"Ejercicio"};
inline constexpr Par EtiquetaPeriodo{u"Zergaldia", u"Período"};

inline constexpr Caja CajaDeclarante{10, 0, AnchoUtil, 60.8};
inline constexpr std::array<Campo, 11> Declarante = {{
    {EtiquetaNif, {10, 0, 40, 15.2}, Valor::Nif},
    {EtiquetaNombre, {50, 0, 150, 15.2}, Valor::Nombre},
    {{u"Zerga helbidea (kalea edo plaza) /", u"Domicilio fiscal (calle o plaza)"},
     {10, 15.2, 110, 15.2},
     Valor::Domicilio},
    {{u"Etxe zk.", u"Nº Casa"}, {120, 15.2, 30, 15.2}, Valor::Numero},
    {{u"Oina", u"Piso"}, {150, 15.2, 50, 15.2}, Valor::Piso},
    {{u"Udalerria", u"Municipio"}, {10, 30.4, 90, 15.2}, Valor::Municipio},
    {{u"Posta Kodea", u"Cód. Postal"}, {100, 30.4, 34, 15.2}, Valor::CodigoPostal},
    {{u"Probintzia", u"Provincia"}, {134, 30.4, 66, 15.2}, Valor::Provincia},
    {{u"Telefonoa", u"Teléfono"}, {10, 45.6, 90, 15.2}, Valor::Telefono},
    {EtiquetaEjercicio, {100, 45.6, 34, 15.2}, Valor::Ejercicio},
    {EtiquetaPeriodo, {134, 45.6, 66, 15.2}, Valor::Periodo},
}};

inline constexpr Caja CajaPostal{10, 0, AnchoUtil, 49};
inline constexpr std::array<Campo, 4> Postal = {{
    {{u"Izendapena edo enpresaren izena /", u"Denominación o razón social"}, {10, 0, 190, 16.3}},
    {{u"Posta helbidea", u"Dirección postal"}, {10, 16.3, 190, 16.3}},
    {{u"Herrialdea", u"País"}, {10, 32.6, 124, 16.3}},
    {{u"Herrialde gakoa", u"Clave país"}, {134, 32.6, 66, 16.3}},
}};

/// The numbered lines of the liquidation, one below the other.
inline constexpr Caja CajaLiquidacion{10, 0, AnchoUtil, 29};
inline constexpr double AltoLinea = 9;
inline constexpr double PrimeraLinea = 1;
inline constexpr std::array<Par, 3> Lineas = {{
    {u"OINARRI EZARGARRIA", u"/ BASE IMPONIBLE"},
    {u"EZARPEN TASA", u"/ TIPO IMPOSITIVO"},
    {u"KUOTA OSOA", u"/ CUOTA TOTAL"},
}};
constexpr Caja cajaLinea(int linea)
{
    return {134, PrimeraLinea + linea * AltoLinea, 65, AltoLinea};
}
enum Linea { Base, Tipo, Cuota };

inline constexpr Caja CajaFirma{10, 0, AnchoUtil, 42};
inline constexpr Campo Fecha{{u"Data /", u"Fecha:"}, {10, 0, 70, 14}, Valor::Fecha};
inline constexpr Par EtiquetaFirma{u"Aitortzailearen sinadura /", u"Firma del declarante"};
inline constexpr Caja CajaSinadura{81, 1, 118, 40};

inline constexpr double LineaCorte = -1.5;
inline constexpr Caja CajaCarta{10, 0, AnchoUtil, 62};
inline constexpr Par TituloCarta{u"Ordainketa-gutuna/", u"Carta de pago"};
inline constexpr Caja CajaTituloCarta{10, 0, AnchoUtil, 5.4};
inline constexpr std::array<Campo, 7> Carta = {{
    {EtiquetaNif, {10, 5.6, 34, 14}, Valor::Nif},
    {EtiquetaNombre, {44, 5.6, 80, 14}, Valor::Nombre},
    {EtiquetaEjercicio, {10, 19.6, 34, 14}, Valor::Ejercicio},
    {EtiquetaPeriodo, {44, 19.6, 80, 14}, Valor::Periodo},
    {{u"Entitatearen gakoa/", u"Clave Entidad"}, {10, 33.6, 60, 14}},
    {{u"Data/", u"Fecha"}, {70, 33.6, 54, 14}},
    {{u"Zenbatekoa/", u"Importe"}, {10, 47.6, 114, 14}},
}};
/// The slip's amount, right-aligned in the last of its fields.
inline constexpr const Campo &ImporteCarta = Carta.back();
inline constexpr Par EtiquetaSello{u"Zigilua eta sinadura/", u"Sello y Firma"};
inline constexpr Caja CajaSello{125, 6.4, 74, 54.6};

} // namespace Impreso430

} // namespace impreso
