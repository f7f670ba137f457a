#include "dataservice/Codigos.h"
#include "printing/Impreso.h"
#include "printing/Piezas.h"

#include <array>

/// Labels, places and drawing of the model 430 form.
namespace impreso {
namespace {

/// Tops of the sections, from the page's top.
namespace Seccion {
constexpr double Cabecera = 32;
constexpr double Declarante = 38.22;
constexpr double ValoresDeclarante = 40.22;
constexpr double Postal = 100;
constexpr double Liquidacion = 150;
constexpr double Firma = 180;
constexpr double CartaPago = 225;
} // namespace Seccion

constexpr Par Titulo{u"Aitorpen - likidazioa /", u"Declaración - liquidación"};
constexpr Caja CajaTitulo{10, 0, AnchoUtil, 5.42};

constexpr Par EtiquetaNif{u"NA / IFZ", u"DNI / NIF"};
constexpr Par EtiquetaNombre{u"Deiturak eta izena edo enpresaren izena /",
                             u"Apellidos y nombre o razón social"};
constexpr Par EtiquetaEjercicio{u"Ekitaldia", u"Ejercicio"};
constexpr Par EtiquetaPeriodo{u"Zergaldia", u"Período"};

constexpr Caja CajaDeclarante{10, 0, AnchoUtil, 60.8};
constexpr std::array<Campo, 11> Declarante = {{
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

constexpr Caja CajaPostal{10, 0, AnchoUtil, 49};
constexpr std::array<Campo, 4> Postal = {{
    {{u"Izendapena edo enpresaren izena /", u"Denominación o razón social"}, {10, 0, 190, 16.3}},
    {{u"Posta helbidea", u"Dirección postal"}, {10, 16.3, 190, 16.3}},
    {{u"Herrialdea", u"País"}, {10, 32.6, 124, 16.3}},
    {{u"Herrialde gakoa", u"Clave país"}, {134, 32.6, 66, 16.3}},
}};

/// The numbered lines of the liquidation, one below the other.
constexpr Caja CajaLiquidacion{10, 0, AnchoUtil, 29};
constexpr double AltoLinea = 9;
constexpr double PrimeraLinea = 1;
constexpr std::array<Par, 3> Lineas = {{
    {u"OINARRI EZARGARRIA", u"/ BASE IMPONIBLE"},
    {u"EZARPEN TASA", u"/ TIPO IMPOSITIVO"},
    {u"KUOTA OSOA", u"/ CUOTA TOTAL"},
}};
constexpr Caja cajaLinea(int linea)
{
    return {134, PrimeraLinea + linea * AltoLinea, 65, AltoLinea};
}
enum Linea { Base, Tipo, Cuota };

constexpr Caja CajaFirma{10, 0, AnchoUtil, 42};
constexpr Campo Fecha{{u"Data /", u"Fecha:"}, {10, 0, 70, 14}, Valor::Fecha};
constexpr Par EtiquetaFirma{u"Aitortzailearen sinadura /", u"Firma del declarante"};
constexpr Caja CajaSinadura{81, 1, 118, 40};

constexpr double LineaCorte = -1.5;
constexpr Caja CajaCarta{10, 0, AnchoUtil, 62};
constexpr Par TituloCarta{u"Ordainketa-gutuna/", u"Carta de pago"};
constexpr Caja CajaTituloCarta{10, 0, AnchoUtil, 5.4};
constexpr std::array<Campo, 7> Carta = {{
    {EtiquetaNif, {10, 5.6, 34, 14}, Valor::Nif},
    {EtiquetaNombre, {44, 5.6, 80, 14}, Valor::Nombre},
    {EtiquetaEjercicio, {10, 19.6, 34, 14}, Valor::Ejercicio},
    {EtiquetaPeriodo, {44, 19.6, 80, 14}, Valor::Periodo},
    {{u"Entitatearen gakoa/", u"Clave Entidad"}, {10, 33.6, 60, 14}},
    {{u"Data/", u"Fecha"}, {70, 33.6, 54, 14}},
    {{u"Zenbatekoa/", u"Importe"}, {10, 47.6, 114, 14}},
}};
/// The slip's amount, right-aligned in the last of its fields.
constexpr const Campo &ImporteCarta = Carta.back();
constexpr Par EtiquetaSello{u"Zigilua eta sinadura/", u"Sello y Firma"};
constexpr Caja CajaSello{125, 6.4, 74, 54.6};

constexpr Estilo EstiloImporte = EstiloValor.de(11);

/// A dark strip with a title in white.
void tira(Lienzo &lienzo, const Caja &caja, const Par &titulo)
{
    lienzo.fondo(caja, Tinta::Oscura);
    parEnLinea(lienzo, caja.dentro(2, 0), titulo, Estilo{Letra::Times, 11, true, Tinta::Blanco});
}

void cabecera(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    dibujarMembrete(lienzo, impreso, Modelo430);
    tira(lienzo, CajaTitulo, Titulo);
}

void declarante(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaDeclarante);
    campos(lienzo, Declarante, Forma::DosLineas);
}

void valoresDeclarante(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    constexpr double subida = Seccion::Declarante - Seccion::ValoresDeclarante;
    valores(lienzo, Declarante, Forma::DosLineas, impreso, subida);
}

void postal(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaPostal);
    campos(lienzo, Postal, Forma::DosLineas);
}

void liquidacion(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaLiquidacion);
    for (int linea = 0; const Par &etiqueta : Lineas) {
        const Caja caja = cajaLinea(linea);
        const double ancho
            = parEnLinea(lienzo, {13, caja.y, 110, caja.alto}, etiqueta, EstiloEtiqueta.de(10));
        lienzo.puntos(13 + ancho + 2, caja.x - 1, caja.y + caja.alto / 2 + 1);
        casillaVacia(lienzo, caja, QString::number(++linea));
    }
    lienzo.letra(EstiloImporte);
    signoTipo(lienzo, cajaLinea(Linea::Tipo));
}

void valoresLiquidacion(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    lienzo.letra(EstiloImporte);
    importe(lienzo, cajaLinea(Linea::Base), impreso.casilla(1));
    tipo(lienzo, cajaLinea(Linea::Tipo), impreso.casilla(2));
    importe(lienzo, cajaLinea(Linea::Cuota), impreso.casilla(3));
}

void firma(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    bloque(lienzo, CajaFirma);
    campos(lienzo, {&Fecha, 1}, Forma::DosLineas);
    valores(lienzo, {&Fecha, 1}, Forma::DosLineas, impreso);
    hueco(lienzo, CajaSinadura, EtiquetaFirma);
}

void cartaPago(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    lienzo.lineaCorte(LineaCorte);
    bloque(lienzo, CajaCarta);
    tira(lienzo, CajaTituloCarta, TituloCarta);
    campos(lienzo, Carta, Forma::DosLineas);
    valores(lienzo, Carta, Forma::DosLineas, impreso);
    lienzo.letra(Estilo{Letra::Arial, 12, true, Tinta::Negro});
    lienzo.texto(cajaValor(ImporteCarta, Forma::DosLineas).dentro(1, 0),
                 impreso.texto(Valor::Importe), Qt::AlignRight);
    hueco(lienzo, CajaSello, EtiquetaSello);
}

constexpr Parte Partes[] = {
    {Seccion::Cabecera, cabecera},
    {Seccion::Declarante, declarante},
    {Seccion::ValoresDeclarante, valoresDeclarante},
    {Seccion::Postal, postal},
    {Seccion::Liquidacion, liquidacion},
    {Seccion::Liquidacion, valoresLiquidacion},
    {Seccion::Firma, firma},
    {Seccion::CartaPago, cartaPago},
};

} // namespace

void dibujar430(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia)
{
    dibujarPartes(pintor, Partes, impreso, copia, BajoLaMarca::Papel);
}

} // namespace impreso
