#include "printing/Impreso430.h"

#include "core/Periodos.h"
#include "printing/MarcaCopia.h"
#include "printing/Membrete.h"
#include "printing/Tablas430.h"

namespace impreso {
namespace {

using namespace Impreso430;

constexpr Estilo EstiloImporte = EstiloValor.de(11);

/// A dark strip with a title in white.
void tira(Lienzo &lienzo, const Caja &caja, const Par &titulo)
{
    lienzo.fondo(caja, Tinta::Oscura);
    parEnLinea(lienzo, caja.dentro(2, 0), titulo, Estilo{Letra::Times, 11, true, Tinta::Blanco});
}

/// An empty white box to sign or stamp in.
void hueco(Lienzo &lienzo, const Caja &caja, const Par &etiqueta)
{
    lienzo.blanca(caja);
    parEnLinea(lienzo, {caja.x + 1.5, caja.y + 0.7, caja.ancho - 3, 3.2}, etiqueta, EstiloEtiqueta);
}

void cabecera(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    dibujarMembrete(lienzo, impreso, Modelo430);
    tira(lienzo, CajaTitulo, Titulo);
}

void declarante(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaDeclarante);
    campos(lienzo, Impreso430::Declarante, Forma::DosLineas);
}

void valoresDeclarante(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    constexpr double subida = Seccion::Declarante - Seccion::ValoresDeclarante;
    valores(lienzo, Impreso430::Declarante, Forma::DosLineas, impreso, subida);
}

void postal(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaPostal);
    campos(lienzo, Impreso430::Postal, Forma::DosLineas);
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

struct Parte
{
    double arriba;
    void (*dibujar)(Lienzo &, const ValoresImpreso &);
};

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
    Lienzo lienzo(pintor);
    for (const Parte &parte : Partes) {
        lienzo.seccion(parte.arriba);
        parte.dibujar(lienzo, impreso);
    }
    dibujarMarca(lienzo, copia);
}

} // namespace impreso
